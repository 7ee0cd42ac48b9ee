// Pick an account that takes entries, by code, name or pinyin.
#include "module/vouchers/U6661_3.h"

#include "host/values/code_match.h"

namespace module {

// ---- opening ----

TF6661_3::TF6661_3(TForm* parent) : VoucherPicker(parent) {
    Caption = "科目";
    AdoQry_Main.DefineField("km_ID", FieldType::Text, 50);
    AdoQry_Main.DefineField("km_name_new", FieldType::Text, 610);
    AdoQry_Main.DefineField("pym", FieldType::Text, 100);
    AdoQry_Main.Open();
    DBGridEh.Columns = {{.FieldName = "km_ID", .Title = "科目", .Width = 14},
                        {.FieldName = "km_name_new", .Title = "会计科目", .Width = -1},
                        {.FieldName = "pym", .Title = "拼音码", .Width = 12}};
    bind(wl_id, btn_ins);
    layout = Rows({Field("科目", wl_id, 32),
                   Text("提示：您可以录入科目代号，科目名称，拼音码  进行检索"), Rest(DBGridEh),
                   Buttons({&btn_ins, &btn_ok, &btn_Cancel})});
}

void TF6661_3::init(TClientDataSet& lines, TLinkEdit* edit, const std::string& function,
                    const std::string& code_field, const std::string& name_field,
                    const std::string&) {
    lines_ = &lines;
    edit_ = edit;
    FunctionCode = function;
    code_field_ = code_field;
    name_field_ = name_field;
}

// The chart may have changed since the picker stood open last.
void TF6661_3::FormShow() {
    VoucherPicker::FormShow();
    loaded_ = false;
    start_search();
}

void TF6661_3::load_leaf_accounts() {
    opensql(AdoQry_Main, FunctionCode,
            "SELECT km_id,km_name_new,PYM FROM V6801 where ISEND=1 order by km_id ");
    loaded_ = true;
}

// ---- lines ----

void TF6661_3::WL_IDChange() {
    if (!loaded_) load_leaf_accounts();
    const std::string text = wl_id.Text;
    AdoQry_Main.SetFilter([text](const TClientDataSet& account) {
        return code_fits(account.FieldByName("km_id").AsText(),
                         account.FieldByName("km_name_new").AsText(),
                         account.FieldByName("pym").AsText(), text);
    });
}

// ---- saving ----

void TF6661_3::hand_over() {
    const std::string code = AdoQry_Main.FieldByName("km_id").AsText();
    const std::string name = AdoQry_Main.FieldByName("km_name_new").AsText();
    if (edit_) {
        edit_->Text = code;
        edit_->DisplayName = name;
        return;
    }
    lines_->Edit();
    lines_->FieldByName(code_field_).SetText(code);
    lines_->FieldByName(name_field_).SetValue(name);
}

} // namespace module
