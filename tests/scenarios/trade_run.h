// Trade kept twice: by the program's forms and by plain addition, compared after every act.
#pragma once

#include <map>
#include <random>
#include <string>
#include <vector>

#include "tests/scenarios/naive_trade.h"
#include "tests/support/books.h"
#include "tests/support/person.h"

namespace tests {

// The words and tables of one side of trade.
struct TradeSide {
    const char *parties, *goods, *returns, *others, *heads, *lines; // tables
    const char* balances;                                           // VD631
    const char* report;                                             // SYS_YS
    int settlement_code, other_code;                                // functions
    const char *settled_kind, *open_kind;     // of other documents: 收款结算, 其他应收
    const char* purposes[4];                  // of settlements
    const char* sums_differ;                  // told when the money does not fit the shares
    int money_direction;                      // of a settlement: 1 in, -1 out
};
extern const TradeSide sales_side, purchase_side;

struct TradeCount {
    std::map<std::string, int> acts; // by name
    std::size_t figures = 0;         // amounts compared
};

// Random acts of a person with the forms; goods come and go as their own modules write them.
class TradeRun {
public:
    explicit TradeRun(std::uint32_t seed);
    // Carries out one act and compares; what differs is a failure of the test.
    void step();
    // Settlement columns and open balances of both sides.
    void compare_both_sides();
    // All reports over random ranges of days, and the audit of the books.
    void compare_reports();
    const TradeCount& count() const { return count_; }
    Books& books() { return books_; }

private:
    struct Ledger {
        const TradeSide* side;
        NaiveTrade trade;
    };
    struct Money { // of other documents, transfers and goods paid back at once
        std::string number, account, date;
        Cents moved; // negative for what went out
    };

    // Acts.
    void deliver(Ledger& ledger);
    void invoice(); // goods for a customer, some of them paid at once
    void take_back(Ledger& ledger);
    void enter_other(Ledger& ledger, bool open);
    void settle(Ledger& ledger, int purpose);
    void settle_too_much(Ledger& ledger);
    void receive_split(); // over several accounts, sometimes more than is owed
    void change_settlement(Ledger& ledger);
    void delete_settlement(Ledger& ledger);
    void delete_other(Ledger& ledger);
    void transfer();

    // Steps of acts.
    void begin_settlement(Ledger& ledger, const NaiveSettlement& settlement);
    std::vector<NaiveShare> stored_shares(const Ledger& ledger, const std::string& number);
    bool select(int code, const std::string& number); // in a list that shows all days
    void expect_one_question();

    // Comparisons.
    void compare(const Ledger& ledger);
    void compare_items(const Ledger& ledger);
    void compare_ranges(const Ledger& ledger, const std::string& from, const std::string& until);
    void compare_money(const std::string& from, const std::string& until);
    Cents money_before(const std::string& account, const std::string& day) const;
    void same(const std::string& what, const std::string& found, Cents expected);

    // Chance.
    std::size_t any(std::size_t count);
    bool once_in(int times) { return any(static_cast<std::size_t>(times)) == 0; }
    Cents amount(Cents most);
    std::string day(); // of the first quarter of 2024
    std::string party() { return "P" + std::to_string(1 + any(3)); }
    std::string account() { return std::to_string(1 + any(3)); }
    std::string next(const char* beginning) { return beginning + std::to_string(++numbers_); }

    std::mt19937 random_;
    Books books_;
    Person anna_;
    Ledger sales_, purchases_;
    std::vector<Money> money_;
    TradeCount count_;
    int numbers_ = 100;
};

} // namespace tests
