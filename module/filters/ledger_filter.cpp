// What the condition dialogs of the ledgers share: a range of periods in one year.
#include "module/filters/ledger_filter.h"

namespace module {

namespace {

constexpr PeriodRefusals within_the_books{
    .too_late = "开始期间不能 大于 当前会计期间!当前会计期间:",
    .too_early = "开始期间不能 小于 帐套启用日期!帐套启用日期为:"};

} // namespace

// Ticking means opposite things in the two kinds of dialog, and the procedures take it as such: the
// detailed ledger leaves unposted vouchers out unless ticked, the general ledger leaves accounts
// without turnover out when ticked.
const LedgerDialog detailed_ledger_dialog = {
    .caption = "明细分类帐 · 查询条件",
    .refusals = within_the_books,
    .reversed = "会计期间开始大于结束!",
    .box = "包含未过帐凭证",
    .ticked_shows_all = true,
    .everything = "含未过帐凭证",
    .selection = "仅已过帐凭证",
    .gap = "     ",
};

const LedgerDialog general_ledger_dialog = {
    .caption = "总分类帐 · 查询条件",
    .refusals = within_the_books,
    .reversed = "会计期间开始 大于 结束!",
    .box = "无发生额不显示",
    .ticked_shows_all = false,
    .everything = "含无发生额科目",
    .selection = "仅有发生额科目",
    .gap = "    ",
};

// A journal may begin before the books did: it then shows what there is.
const LedgerDialog journal_dialog = {
    .caption = "现金,银行存款日记帐 · 查询条件",
    .refusals = {.too_late = "开始期间不能大于当前会计期间!当前会计期间:", .too_early = nullptr},
    .reversed = "会计期间开始大于结束!",
    .box = "包含未过帐凭证",
    .ticked_shows_all = true,
    .everything = "含未过帐凭证",
    .selection = "仅已过帐凭证",
    .gap = "    ",
};

// ---- opening ----

LedgerFilter::LedgerFilter(TForm* parent, const LedgerDialog& dialog)
    : PeriodFilter(parent, dialog.refusals), dialog_(dialog) {
    Caption = dialog.caption;
    fill_with_months(EDT3);
    ComboBox2.Items = std::vector<std::string>{"综合本位币", "人民币"};
    ComboBox2.set_index(0);
    YS.Caption = dialog.box;
    YS.Checked = true;
}

void LedgerFilter::InitForm() {
    PeriodFilter::InitForm();
    Remember(YS);
}

void LedgerFilter::offer_period(Period current) {
    PeriodFilter::offer_period(current);
    EDT3.set_index(current.month() - 1);
}

// ---- checking ----

void LedgerFilter::btn_okClick() {
    check_chosen(EDT2);
    check_chosen(EDT3);
    if (EDT2.item_index() > EDT3.item_index()) refuse_month(dialog_.reversed);
    LedgerCall call;
    call.first = year_and(EDT2);
    call.last = year_and(EDT3);
    check_limits(call.first);
    check_more();
    PeriodFilter::btn_okClick();
    call.before = Period::parse(call.first)->previous().to_text();
    const bool everything = YS.Checked == dialog_.ticked_shows_all;
    call.show = boltos(!everything);
    Scope = everything ? dialog_.everything : dialog_.selection;
    ResultText = statement(call);
    Description = " ●会计年度:" + EDT1.Text.get() + dialog_.gap + "●会计期间:" + EDT2.Text.get() +
                  "  至  " + EDT3.Text.get() + more_description();
}

} // namespace module
