// Pick a common summary for a voucher line.
#include "module/vouchers/U6661_2.h"

#include "host/values/sql_text.h"
#include "module/refuse.h"
#include "module/vouchers/picker_keys.h"

namespace module {

// ---- opening ----

TF6661_2::TF6661_2(TForm* parent) : TFrm_Base_Dialog(parent) {
    Caption = "摘要";
    PreferredWidth = 56;
    AdoQry_Main.DefineField("ZY", FieldType::Text, 100);
    AdoQry_Main.Open();
    DBGridEh.Columns.push_back({.FieldName = "ZY", .Title = "摘要", .Width = -1, .ReadOnly = true});
    DBGridEh.ReadOnly = true;
    btn_ok.Default = true; // Enter takes the row
    DBGridEh.EmptyText = "没有相符的摘要";
    BTN_INS.KeyHint = "Insert";
    wl_name.OnChange = [this] { wl_nameChange(); };
    BTN_INS.OnClick = [this] { BTN_INSClick(); };
    DBGridEh.OnDblClick = [this] { btn_ok.Click(); };
    layout = Rows(
        {Field("摘要", wl_name, 32), Rest(DBGridEh), Buttons({&BTN_INS, &btn_ok, &btn_Cancel})});
}

void TF6661_2::init(TClientDataSet& lines, const std::string& function) {
    lines_ = &lines;
    FunctionCode = function;
}

void TF6661_2::FormShow() {
    TFrm_Base_Dialog::FormShow();
    wl_name.Text = "";
    wl_nameChange();
    wl_name.SetFocus();
}

// ---- lines ----

void TF6661_2::wl_nameChange() {
    const std::string text = wl_name.Text;
    if (text.empty()) {
        opensql(AdoQry_Main, FunctionCode, " SELECT * FROM D6803");
        return;
    }
    opensql(AdoQry_Main, FunctionCode,
            " SELECT * FROM D6803 WHERE (ZY like '%" + escaped(text) + "%')");
    if (!AdoQry_Main.IsEmpty()) return;
    opensql(AdoQry_Main, FunctionCode,
            " SELECT * FROM D6803 WHERE (PYM like '%" + escaped(text) + "%')");
}

void TF6661_2::FormKeyDown(Key& key) {
    if (key.code == KeyCode::Insert) {
        key = {};
        BTN_INS.Click();
        return;
    }
    move_row_from_search(key, AdoQry_Main);
    TFrm_Base_Dialog::FormKeyDown(key);
}

// ---- saving ----

void TF6661_2::hand_over() {
    if (AdoQry_Main.IsEmpty()) refuse("没有选中的摘要!请改写检索内容。");
    lines_->Edit();
    lines_->FieldByName("ZY").SetText(AdoQry_Main.FieldByName("ZY").AsText());
}

void TF6661_2::BTN_INSClick() {
    hand_over();
}

void TF6661_2::btn_okClick() {
    hand_over();
    TFrm_Base_Dialog::btn_okClick();
}

} // namespace module
