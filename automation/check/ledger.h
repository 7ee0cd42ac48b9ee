// The chart, the stored balances, and what the posted vouchers give, in memory.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <utility>

#include "automation/check/open_periods.h"
#include "engines/session.h"

namespace automation {

// Amounts in cents. SY_ is the part of the carry-forward, sides swapped as the table keeps it.
struct Movement {
    std::int64_t debit = 0, credit = 0, sy_debit = 0, sy_credit = 0;
    Movement& operator+=(const Movement& other);
    friend bool operator==(const Movement&, const Movement&) = default;
};

// The opening figures are as the chart keeps them, in cents: debit and credit of the year up to the
// start, the balance at the start, profit and loss of the year up to the start.
struct Account {
    std::string parent; // "Z" at the top
    bool debit_side = true;
    std::int64_t year_debit = 0, year_credit = 0, balance = 0, year_profit = 0;
};

using AccountId = std::string;
using PeriodAccount = std::pair<std::string, AccountId>; // "2024-03", "1002"

struct Ledger {
    std::map<AccountId, Account> accounts;
    std::map<PeriodAccount, Movement> movements; // D6602, INX 0
    std::map<PeriodAccount, Movement> closings;  // D6602, INX 1
    OpenPeriods periods;
};

// Throws engines::Failure.
Ledger read_ledger(engines::Session& session);

// What the posted vouchers give, rolled up: every account gets the sum of its leaves.
std::map<PeriodAccount, Movement> movements_of_vouchers(engines::Session& session,
                                                        const Ledger& ledger);

// The row, or zeros when the table has none.
Movement at(const std::map<PeriodAccount, Movement>& rows, const PeriodAccount& key);

// Adds to the account and to everything above it.
void add_upwards(const Ledger& ledger, AccountId id,
                 const std::function<void(const AccountId&)>& add);

// Cents as a person writes them: -5 is "-0.05".
std::string money(std::int64_t cents);

} // namespace automation
