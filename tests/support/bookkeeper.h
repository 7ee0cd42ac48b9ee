// A bookkeeper's daily work, an act a call: vouchers typed, audited, posted, a period closed.
#pragma once

#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/support/person.h"

namespace tests {

// Something the bookkeeper could not do: a request that was refused, a form that did not open.
struct Surprise : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// What is typed. Amounts are texts ("1234.50"); "" and "0.00" are left alone.
struct TypedLine {
    std::string summary, account, debit, credit;
};
struct TypedAllocation {
    std::string item, inflow, outflow;
};
struct TypedVoucher {
    std::string word; // "" takes the word offered
    std::string date;
    int attachments = 0;
    std::vector<TypedLine> lines;
    std::vector<TypedAllocation> cash;
};
struct TypedAccount {
    std::string code, name, side; // 借 or 贷
    std::string parent;           // "" at the top
    int category = 1;             // 1 assets, 2 liabilities, 3 equity, 4 cost, 5 profit and loss
    bool cash_flow = false;
};
// Opening figures of an account: the year's debit and credit and profit and loss up to the start,
// and the balance at the start on the account's own side.
struct TypedOpening {
    std::string account, debit, credit, balance, profit;
};
struct TypedCell {
    int row;
    std::string field, value;
};

// Acts through the driver only. Every act opens its function and leaves it again, and answers the
// texts that were shown on the way, without questions, which are answered with yes: "登帐完成!", a
// refusal, nothing. A request that the forms do not take at all is a Surprise.
//
//     Bookkeeper anna(person);
//     anna.enter({{"记", "2024-03-05", 1, {{"提现", "1001", "500", ""},
//                                          {"提现", "1002", "", "500"}}, {}}});
//     anna.audit_all();
//     EXPECT_EQ(anna.post(), Told{"登帐完成!"});
class Bookkeeper {
public:
    using Told = std::vector<std::string>;

    explicit Bookkeeper(Person& person) : person_(person) {}

    Told enter(const std::vector<TypedVoucher>& vouchers); // 661
    // Changes cells of a voucher's lines, its number unless "", and amounts of its allocation.
    Told change(const std::string& key, const std::vector<TypedCell>& cells,
                const std::string& number = "", const std::vector<TypedAllocation>& cash = {});
    Told reverse(const std::string& key); // by a red voucher, also a second time
    Told remove(const std::string& key);
    Told audit_all(); // 662: those of the current period that are not audited
    Told audit(const std::vector<std::string>& keys);
    Told take_audit_back(const std::vector<std::string>& keys);
    Told post(bool gaps_allowed = false); // 663
    Told unpost(bool gaps_allowed = false);
    Told carry_forward(const std::string& date, const std::string& summary,
                       const std::string& account); // 667
    Told close_period();                            // 668
    Told reopen_period();                           // a question is answered with yes

    Told add_account(const TypedAccount& account); // 681
    Told change_side(const std::string& account, int category, const std::string& side);
    Told remove_account(const std::string& account, int category);
    std::vector<std::string> chart(int category); // nodes as the tree shows them
    Told type_openings(const std::vector<TypedOpening>& openings); // 699, saved
    // 699 again: tests the balance and posts the openings; `words` is the voucher word scheme.
    // `sums` takes the footers of the test.
    Told set_up(const std::string& start, int words, Row* sums = nullptr);

    // 689: the rows of a period down to a level, and the footers.
    Rows trial_balance(const std::string& period, int level, Row* footers = nullptr);
    Rows profit_accounts(); // 667: the accounts and balances to be carried forward
    // 684: movements of the top-level accounts; `conditions` takes what is shown above the list.
    Rows account_summary(const std::string& first_day, const std::string& last_day,
                         std::string* conditions = nullptr);
    // 685 and 690: posted vouchers only; 686: every account, down to the last level.
    Rows detailed_ledger(const std::string& account, const std::string& period);
    Rows general_ledger(const std::string& period);
    Rows journal(const std::string& account, const std::string& period);
    // 671 to 673, recalculated; `layout` is 样式1 to 样式3, "" where there is one only.
    Rows statement(int code, const std::string& layout, const std::string& period);

private:
    using json = nlohmann::json;
    json ask(const json& request);
    void ask_saying_yes(const json& request);
    void open(int code);
    void ask_for_period(int code, const std::string& period); // in the conditions of 685, 686, 690
    Rows read_and_leave(int code);                            // what the conditions give
    void click(const std::string& control);
    void set(const std::string& control, const json& value);
    void cell(int row, const std::string& field, const std::string& value,
              const std::string& grid = "DBGridEh");
    void leave_all(); // closes every form; unsaved work is given up
    Rows rows(const std::string& grid = "DBGridEh");
    Rows taken(Rows shown); // leaves and forgets what was shown
    Row footers(const std::vector<std::string>& fields);
    int row_of(const std::string& field, const std::string& value,
               const std::string& grid = "DBGridEh");
    void type(const TypedVoucher& voucher);
    void allocate(const std::vector<TypedAllocation>& cash);
    Told mark_and_click(const std::vector<std::string>& keys, const std::string& action);
    Told press(int code, const std::string& button, bool gaps_allowed);
    void choose_node(const std::string& account, int category);
    void expect_active(const std::string& form);
    Told told();

    Person& person_;
    std::string active_;
    Told told_;
    Told questions_;
};

} // namespace tests
