// What a bookkeeper reads in the ledgers.
#include "tests/support/bookkeeper.h"

namespace tests {

namespace {

std::string month_of(const std::string& period) {
    return std::to_string(std::stoi(period.substr(5)));
}

} // namespace

void Bookkeeper::ask_for_period(int code, const std::string& period) {
    open(code);
    expect_active("TF6" + std::to_string(code) + "F");
    set("EDT1", period.substr(0, 4));
    set("EDT2", month_of(period));
    set("EDT3", month_of(period));
}

Rows Bookkeeper::read_and_leave(int code) {
    click("btn_ok");
    expect_active("TF6" + std::to_string(code));
    return taken(rows());
}

Rows Bookkeeper::account_summary(const std::string& first_day, const std::string& last_day,
                                 std::string* conditions) {
    open(684);
    expect_active("TF6684F");
    set("BDATE", first_day);
    set("EDATE", last_day);
    click("btn_ok");
    expect_active("TF6684");
    if (conditions != nullptr) {
        *conditions = ask({{"op", "get"}, {"control", "ConditionLabel"}}).value("value", "");
    }
    return taken(rows());
}

Rows Bookkeeper::detailed_ledger(const std::string& account, const std::string& period) {
    ask_for_period(685, period);
    set("KM1", account);
    set("KM2", account);
    set("YS", false);
    return read_and_leave(685);
}

Rows Bookkeeper::general_ledger(const std::string& period) {
    ask_for_period(686, period);
    set("PZZ_H", "5");
    set("YS", false);
    return read_and_leave(686);
}

Rows Bookkeeper::journal(const std::string& account, const std::string& period) {
    ask_for_period(690, period);
    set("YS", false);
    ask({{"op", "row"}, {"control", "DBGridEh"}, {"row", row_of("KM_ID", account)}});
    return read_and_leave(690);
}

} // namespace tests
