// Pick a common summary for a voucher line.
#include "module/vouchers/U6661_2.h"

#include "host/values/sql_text.h"
#include "host/values/text.h"

namespace module {

// ---- opening ----

TF6661_2::TF6661_2(TForm* parent) : VoucherPicker(parent) {
    Caption = "摘要";
    AdoQry_Main.DefineField("ZY", FieldType::Text, 100);
    AdoQry_Main.Open();
    DBGridEh.Columns.push_back({.FieldName = "ZY", .Title = "摘要", .Width = -1});
    bind(wl_name, BTN_INS);
    layout = Rows(
        {Field("摘要", wl_name, 32), Rest(DBGridEh), Buttons({&BTN_INS, &btn_ok, &btn_Cancel})});
}

void TF6661_2::init(TClientDataSet& lines, const std::string& function) {
    lines_ = &lines;
    FunctionCode = function;
}

void TF6661_2::FormShow() {
    VoucherPicker::FormShow();
    start_search();
}

// ---- lines ----

// What is no part of any summary is looked for among their pinyin initials, in the list that the
// blank search read when the picker opened.
void TF6661_2::wl_nameChange() {
    const std::string text = wl_name.Text;
    const std::string all = " SELECT * FROM D6803";
    if (text.empty()) {
        opensql(AdoQry_Main, FunctionCode, all);
        all_.CopyFrom(AdoQry_Main);
        return;
    }
    opensql(AdoQry_Main, FunctionCode, all + " WHERE (ZY like '%" + escaped(text) + "%')");
    if (!AdoQry_Main.IsEmpty()) return;
    all_.SetFilter([&](const TClientDataSet& summary) {
        return contains_text(summary.FieldByName("PYM").AsText(), text);
    });
    AdoQry_Main.CopyFrom(all_);
    all_.SetFilter(nullptr);
}

// ---- saving ----

void TF6661_2::hand_over() {
    lines_->Edit();
    lines_->FieldByName("ZY").SetText(AdoQry_Main.FieldByName("ZY").AsText());
}

} // namespace module
