// Pick any account of the chart, by code, name or pinyin.
#include "module/masterdata/ULINK_6801.h"

#include "host/values/sql_text.h"
#include "host/values/text.h"

namespace module {

// ---- opening ----

TFLINK_6801::TFLINK_6801(TForm* parent) : TBase_Link(parent) {
    Caption = "选择科目";
    PreferredWidth = 64;
    AdoQry_Main.DefineField("KM_ID", FieldType::Text, 50);
    AdoQry_Main.DefineField("KM_NAME", FieldType::Text);
    DBGridEh.Columns = {{.FieldName = "KM_ID", .Title = "科目", .Width = 16},
                        {.FieldName = "KM_NAME", .Title = "会计科目", .Width = -1}};
    DBGridEh.EmptyText = "没有符合条件的科目";
    DBGridEh.OnDblClick = [this] { DBGridEhDblClick(); };
    wl_id.OnChange = [this] {
        if (Shown()) refreshdate();
    };
    layout = Rows({Field("查找", wl_id, 32), Text("提示：您可以录入科目代号，科目名称，拼音码  进行检索"),
                   Rest(DBGridEh), Buttons({&btn_ok, &btn_Cancel})});
}

void TFLINK_6801::init(TLinkEdit& edit, const std::string& condition) {
    edit_ = &edit;
    base_query_ = "SELECT KM_ID,KM_NAME2 AS KM_NAME FROM V6801 where (1>0) ";
    if (!condition.empty()) base_query_ += " and " + condition;
    wl_id.Text = "";
}

void TFLINK_6801::FormShow() {
    TBase_Link::FormShow();
    refreshdate();
}

// ---- lines ----

void TFLINK_6801::refreshdate() {
    const std::string text = escaped(trimmed(wl_id.Text.get()));
    const std::string search = " and (KM_id like '%" + text + "%') or(KM_NAME2 like '%" + text +
                               "%') or(pym like '%" + text + "%') ";
    opensql(AdoQry_Main, FunctionCode, base_query_ + (text.empty() ? "" : search));
}

void TFLINK_6801::DBGridEhDblClick() {
    press(btn_ok);
}

void TFLINK_6801::btn_okClick() {
    TBase_Link::btn_okClick();
    if (ModalResult != mrOk || edit_ == nullptr) return;
    edit_->Text = AdoQry_Main.FieldByName("KM_ID").AsText();
    edit_->DisplayName = AdoQry_Main.FieldByName("KM_NAME").AsText();
}

} // namespace module
