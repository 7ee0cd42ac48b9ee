// Show every voucher line of the accounts asked for, with the running balance.
#include "module/ledgers/U6685.h"

#include "module/filters/U6685f.h"
#include "module/opening.h"

namespace module {

TF6685* F6685 = nullptr;

namespace {

constexpr std::int32_t code = 685;

const DetailedLedgerKind kind = {
    .form = {.caption = "明细分类帐",
             .open_caption = "打开凭证",
             .tip = "操作提示：【TAB 键】下一组，【空格/F3】重新筛选 "},
    .after_summary = {},
    .before_balance = {.field = "FX", .title = "方向", .width = 6,
                       .align = Alignment::Center},
};

} // namespace

// ---- opening ----

TF6685::TF6685(TForm* parent) : DetailedLedger(parent, kind) {}

void TF6685::InitForm(const Trecord& record) {
    arrange(true);
    DetailedLedger::InitForm(record);
}

std::unique_ptr<TFrm_Sys_Filter> TF6685::CreateFilter() {
    auto dialog = std::make_unique<TF6685F>(this);
    F6685F = dialog.get();
    return dialog;
}

LedgerFilter* TF6685::Conditions() {
    return F6685F;
}

void TF6685::open686(const std::string& statement, const std::string& title) {
    arrange(false);
    SetTabTitle(Caption.get() + " " + GETCODE(title));
    ShowStatement(code, statement, title);
}

void open_detailed_ledger(TForm* opener, const LedgerCall& call, const std::string& title) {
    open_or_release(new TF6685(opener), [&](TF6685& ledger) {
        ledger.open686(detailed_ledger_call(call), title);
        const LedgerDialog& dialog = detailed_ledger_dialog;
        const std::string months = call.first == call.last ? "" : " 至 " + call.last;
        ledger.ScopeLabel.Caption = call.first + months + "    " +
                                    (call.show == "1" ? dialog.selection : dialog.everything);
    });
}

} // namespace module
