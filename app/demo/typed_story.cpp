// Requests, in the order in which a bookkeeper would work.
#include "app/demo/typed_story.h"

#include "app/demo/typed_requests.h"

namespace app {

namespace {

using host::Amount;
using nlohmann::json;

constexpr const char* undistributed_profit = "314115";

// ---- before the first month ----

// The category buttons in the order of the categories 1 to 5.
constexpr const char* category_buttons[] = {"SpeedButton1", "SpeedButton2", "SpeedButton4",
                                            "SpeedButton3", "SpeedButton5"};

void enter_account(const StoryAccount& account, Requests& to) {
    to.node(account.parent);
    to.click("Act_CopyAdd");
    to.set("t0", account.code);
    to.set("t1", account.name);
    to.set(account.side == "借" ? "RB1" : "RB2", true);
    to.set("CK1", is_money(account.code));
    to.click("btn_ok");
}

void enter_accounts(const Story& story, Requests& to) {
    to.open(681);
    int category = 0;
    for (const StoryAccount& account : story.accounts) {
        if (account.category != category) to.click(category_buttons[account.category - 1]);
        category = account.category;
        enter_account(account, to);
    }
    to.close();
}

void enter_opening(const Story& story, Requests& to) {
    to.open(699);
    to.rows(main_grid);
    for (const StoryBalance& balance : story.opening)
        to.cell(main_grid, {{"KM_ID", balance.account}}, "BEGIN4", balance.amount.to_text());
    to.click("Act_Save");
    to.click("LA2");
    to.click("btn_ok"); // the trial balance
    to.set("BDATE", story.start.first_day().to_text());
    to.click("btn_ok"); // the initial posting, which closes all
}

// ---- a month ----

void allocate_cash(const ToldVoucher& voucher, bool& items_known, Requests& to) {
    const Amount received = money_received(voucher);
    if (voucher.cash_item.empty() || received.is_zero()) return;
    to.click("Act_xj");
    if (!items_known) to.rows("GRID2");
    items_known = true;
    // "=" takes what is left to allocate.
    to.cell("GRID2", {{"ID", voucher.cash_item}}, received.is_negative() ? "D" : "J", "=");
    to.click("btn_ok");
}

void enter_voucher(const ToldVoucher& voucher, bool& items_known, Requests& to) {
    to.set("BDATE", voucher.date.to_text());
    to.set("PZZ_Z", std::to_string(voucher.attachments));
    for (std::size_t i = 0; i < voucher.lines.size(); ++i) {
        const ToldLine& line = voucher.lines[i];
        to.cell(main_grid, i, "ZY", line.summary);
        to.cell(main_grid, i, "KM_ID", line.account);
        if (!line.debit.is_zero()) to.cell(main_grid, i, "J", line.debit.to_text());
        if (!line.credit.is_zero()) to.cell(main_grid, i, "D", line.credit.to_text());
    }
    allocate_cash(voucher, items_known, to);
    to.click("Act_Save");
}

void enter_vouchers(const std::vector<ToldVoucher>& vouchers, Requests& to) {
    if (vouchers.empty()) return;
    to.open(661);
    to.click("Act_Add");
    bool items_known = false;
    for (const ToldVoucher& voucher : vouchers) enter_voucher(voucher, items_known, to);
    to.close(); // the voucher
    to.close(); // the list
}

void audit(std::size_t from, std::size_t to_row, Requests& to) {
    if (from == to_row) return;
    to.open(662);
    for (std::size_t i = from; i < to_row; ++i) {
        to.row(i);
        to.click("Act_Audit");
    }
    to.close();
}

// Dialogs of the period's end: one button does the work, then they are closed.
void post(Requests& to) {
    to.open(663);
    to.click("btn_ok");
    to.close();
}

void carry_forward(const host::Date& day, Requests& to) {
    to.open(667);
    to.set("bdate", day.to_text());
    to.set("KM_ID", undistributed_profit);
    to.click("btn_ok");
    to.close();
}

void close_period(Requests& to) {
    to.open(668);
    to.click("btn_ok");
    to.close();
}

// Balance sheet, income statement and cash flow statement as they are at the end of the period.
void work_out_statements(const host::Period& period, Requests& to) {
    for (const int code : {671, 673, 672}) {
        to.open(code);
        to.set("Edit1", period.to_text());
        to.click("Act_Other");
        to.close();
    }
}

} // namespace

std::vector<json> typed_chart(const Story& story) {
    Requests requests;
    enter_accounts(story, requests);
    return requests.take();
}

std::vector<json> typed_opening(const Story& story) {
    Requests requests;
    enter_opening(story, requests);
    return requests.take();
}

std::vector<json> typed_month(const ToldMonth& month) {
    Requests requests;
    enter_vouchers(month.vouchers, requests);
    if (!month.closes) {
        audit(0, month.posted, requests);
        post(requests);
        audit(month.posted, month.audited, requests);
        return requests.take();
    }
    const std::size_t carried = month.vouchers.size(); // place of the carry-forward in the list
    audit(0, carried, requests);
    post(requests);
    carry_forward(month.period.last_day(), requests);
    enter_vouchers(month.after_carrying, requests);
    audit(carried, carried + 1 + month.after_carrying.size(), requests);
    post(requests);
    if (month.period.month() == 12) work_out_statements(month.period, requests);
    close_period(requests);
    return requests.take();
}

std::vector<json> typed_templates(const std::vector<std::size_t>& places) {
    Requests requests;
    requests.open(661);
    for (const std::size_t place : places) {
        requests.row(place);
        requests.click("Act_Modify");
        requests.click("N2");
        requests.close();
    }
    requests.close();
    return requests.take();
}

} // namespace app
