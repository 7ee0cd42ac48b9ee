// Months of bookkeeping whose figures were worked out by hand, done again through the forms.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "tests/support/bookkeeper.h"
#include "tests/support/books.h"

namespace tests {

// A file of worked months:
//
//     start, start_date, scheme, word     the first period, the day of the opening, the word scheme
//     accounts  km_id km_name fx km_fl oid km_j km_k    those the books need
//     opening   km_id begin2 begin3 begin4 begin5
//     vouchers  period date word number attachments lines{zy km_id j d} cash{id j d} after
//     expected  opening_totals, periods: {"2024-01": {…}}
//
// What a period expects, each part where it is given: voucher_count_before_carry_forward,
// profit_and_loss_balances, carry_forward, trial_balance with its totals, account_summary,
// balance_sheet, balance_sheet_reclassified, income_statement, cash_flow, ledgers.
class WorkedMonths {
public:
    // Books that wait for their opening and somebody at work on them.
    WorkedMonths(const nlohmann::json& file, Books& books, Person& person);

    // Every act and every comparison; what differs is a test failure that names the period and the
    // figure.
    void run();

private:
    using json = nlohmann::json;

    void make_accounts();
    void make_room_for(const std::string& account);
    void set_up();
    void work(const std::string& period);
    void enter(const std::string& period, bool after);
    void audit_and_post(const std::string& what);
    void carry_forward(const std::string& period, const json& expected);
    void close(const std::string& period);

    void compare_profit_accounts(const json& expected);
    void compare_carry_forward(const std::string& period, const json& expected);
    void compare_figures(const std::string& period, const json& expected);
    void compare_trial_balance(const std::string& period, const json& expected);
    void compare_balances(const std::string& period, const json& expected);
    void compare_summary(const std::string& period, const json& expected);
    void compare_statement(const std::string& period, const char* name, const json& expected);
    void compare_reclassified(const std::string& period, const json& expected);
    void compare_ledgers(const std::string& period, const json& expected);
    void compare_journal(const std::string& period, const std::string& account,
                         const Rows& ledger);
    void compare_general_ledger(const std::string& period, const json& expected);
    std::string other_side(const std::string& period, const Row& line) const;
    void expect_sound(const std::string& when);

    const json& file_;
    Books& books_;
    Bookkeeper anna_;
    std::string first_;
};

// A text that stands in the file as a number or a text.
std::string text_in(const nlohmann::json& object, const char* name);

} // namespace tests
