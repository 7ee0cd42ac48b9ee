// Receivables, or payables, kept by plain addition: what the program's views and reports must say.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/scenarios/naive_ledger.h"

namespace tests {

// What stands open with a party until it is settled. Kinds as the write-off lines have them.
struct NaiveItem {
    static constexpr int sale = 0, opening = 2, other = 5, goods_back = 6;
    std::string number, party, date;
    int kind = sale;
    Cents total = 0;    // positive, of goods that came back too
    Cents credited = 0; // on the document itself
};

struct NaiveShare {
    std::string item;
    Cents amount = 0; // negative for goods that came back
    auto operator<=>(const NaiveShare&) const = default;
};

// A receipt or payment.
struct NaiveSettlement {
    static constexpr int settles = 0, advance = 1, refund = 2, set_off = 3;
    std::string number, party, date, account;
    int purpose = settles;
    Cents paid = 0, discount = 0;
    std::vector<NaiveShare> shares;
    std::map<std::string, Cents> split; // by money account; empty: all of it on the one above
};

// Opening, new, settled (discounts in it) and closing of a range of days.
struct NaiveBalance {
    Cents opening = 0, added = 0, settled = 0;
    Cents closing() const { return opening + added - settled; }
};

class NaiveTrade {
public:
    std::vector<NaiveItem> items;
    std::vector<NaiveSettlement> settlements;
    std::map<std::string, Cents> opening_advances; // by party

    Cents settled(const NaiveItem& item) const; // what the shares took, as its column has it
    Cents open(const NaiveItem& item) const;

    // Everything open with a party, the oldest first, as signed amounts.
    std::vector<NaiveShare> offered(const std::string& party, bool with_returns = true) const;
    // Money over what is offered: each item takes what it can. What came back takes its whole
    // negative amount while there is money left, and so leaves more for those after it.
    std::vector<NaiveShare> spread(const std::string& party, Cents money,
                                   bool with_returns = true) const;

    Cents owed(const std::string& party) const;          // 应收
    Cents advance_at_hand(const std::string& party) const; // 预收
    // From one day up to, but not including, another.
    NaiveBalance balance(const std::string& party, const std::string& from,
                         const std::string& until) const;
    bool in_use(const std::string& item) const;

private:
    struct Movement {
        std::string date; // "" for what was there when the books began
        Cents added, settled;
    };
    std::vector<Movement> movements(const std::string& party) const;
};

} // namespace tests
