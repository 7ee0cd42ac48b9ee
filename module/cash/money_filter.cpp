// What the condition dialogs of the reports on money accounts share: days, account, their texts.
#include "module/cash/money_filter.h"

#include "host/values/sql_text.h"
#include "host/values/text.h"
#include "module/trade/trade_code.h"

namespace module {

namespace {

constexpr std::size_t year_and_hyphen = 5; // of "2024-03-01"

std::string month_and_day(const TDateEdit& edit) {
    return edit.value().to_text().substr(year_and_hyphen);
}

} // namespace

// ---- opening ----

MoneyFilter::MoneyFilter(TForm* parent, const MoneyDialog& dialog)
    : DateRangeFilter(parent, "日    期"), dialog_(dialog) {
    Caption = dialog.caption;
    EDATE.Caption = "至";
    bind_trade_code(*this, JY_ID, money_accounts);
    layout = Rows({date_row(), Field(JY_ID.Caption, JY_ID, 12),
                   Buttons({&btn_ok, &btn_Cancel})});
}

// ---- checking ----

void MoneyFilter::btn_okClick() {
    CheckDates(BDATE, EDATE);
    check_choice();
    DateRangeFilter::btn_okClick();
    days_ = {BDATE.value().to_text(), EDATE.value().to_text()};
    ResultText = dialog_.statement + condition();
    Description = description();
}

// ---- statements ----

// The call's end is the day after the last one: it takes in what happened on the last day.
std::string MoneyFilter::condition() {
    const std::string end = EDATE.value().plus_days(1).to_text();
    return quoted(BDATE.value().to_text()) + ",@EDATE=" + quoted(end) +
           (account().empty() ? "" : ",@JY_ID=" + quoted(account()));
}

std::string MoneyFilter::description() const {
    return " ●日期:" + days_text() + " " + (account().empty() ? "" : " ●帐户:" + account());
}

std::string MoneyFilter::account() const {
    return trimmed(JY_ID.Text.get());
}

std::string MoneyFilter::days_text() const {
    return month_and_day(BDATE) + " 至 " + month_and_day(EDATE);
}

} // namespace module
