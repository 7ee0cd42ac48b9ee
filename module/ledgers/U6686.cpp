// Show each account's opening, turnover and closing balance by period.
#include "module/ledgers/U6686.h"

#include "host/controls/grid_groups.h"
#include "module/filters/U6686f.h"
#include "module/ledgers/U6685.h"

namespace module {

TF6686* F6686 = nullptr;

namespace {

constexpr LedgerKind kind = {
    .caption = "总分类帐",
    .open_caption = "打开明细帐",
    .tip = "操作提示：【TAB 键】下一组，【空格/F3】重新筛选 ",
};

} // namespace

// ---- opening ----

TF6686::TF6686(TForm* parent) : LedgerForm(parent, kind) {
    AddColumn("KM_ID", "科目", 14).Tag = group_tag;
    AddColumn("KM_NAME", "会计科目", 30);
    AddColumn("QJ", "期间", 9);
    AddColumn("ZY", "摘要", -1);
    AddAmountColumn("J", "借方金额");
    AddAmountColumn("D", "贷方金额");
    AddColumn("FX", "方向", 6).Align = Alignment::Center;
    AddAmountColumn("E", "余额");
    AdoQry_Main.DefineField("QJ_MONTH", FieldType::Text); // the row's period
}

void TF6686::InitForm(const Trecord& record) {
    arrange(false);
    LedgerForm::InitForm(record);
}

std::unique_ptr<TFrm_Sys_Filter> TF6686::CreateFilter() {
    auto dialog = std::make_unique<TF6686F>(this);
    F6686F = dialog.get();
    return dialog;
}

LedgerFilter* TF6686::Conditions() {
    return F6686F;
}

// ---- lines ----

BookRow TF6686::book_row(int row) const {
    const TField* words = AdoQry_Main.FindField("ZY");
    const bool month = words != nullptr && AdoQry_Main.text_at(row, words->index()) == "本期合计";
    return month ? BookRow::Added : BookRow::Neutral;
}

void TF6686::DBGridEhDblClick() {
    if (AdoQry_Main.IsEmpty()) return;
    const auto text = [this](const char* field) { return AdoQry_Main.FieldByName(field).AsText(); };
    const std::string account = text("KM_ID");
    open_detailed_ledger(this, account_in_period(account, text("QJ_MONTH")),
                         account + " " + text("KM_NAME"));
}

} // namespace module
