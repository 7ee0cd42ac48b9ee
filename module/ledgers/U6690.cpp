// Show the lines of a cash or bank account with the accounts on their other side.
#include "module/ledgers/U6690.h"

#include "module/filters/U6690f.h"

namespace module {

TF6690* F6690 = nullptr;

namespace {

const DetailedLedgerKind kind = {
    .form = {.caption = "现金,银行存款日记帐",
             .open_caption = "打开凭证",
             .tip = "操作提示：【TAB 键】下一组，【空格/F3】重新筛选  "},
    .after_summary = {.field = "KM_ID_DF", .title = "对方科目", .width = 28},
    .before_balance = {},
};

} // namespace

// ---- opening ----

TF6690::TF6690(TForm* parent) : DetailedLedger(parent, kind) {}

void TF6690::InitForm(const Trecord& record) {
    arrange(false);
    DetailedLedger::InitForm(record);
}

std::unique_ptr<TFrm_Sys_Filter> TF6690::CreateFilter() {
    auto dialog = std::make_unique<TF6690F>(this);
    F6690F = dialog.get();
    return dialog;
}

LedgerFilter* TF6690::Conditions() {
    return F6690F;
}

} // namespace module
