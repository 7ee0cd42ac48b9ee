// Opening figures of an account, and whether those of all accounts balance.
#pragma once

#include <string>

#include "host/values/amount.h"
#include "module/host_names.h"

namespace module {

// What is typed for an account whose books begin inside a year: the debits and credits of the year
// up to the start (BEGIN2, BEGIN3) and the balance at the start in the account's own direction
// (BEGIN4).
struct OpeningFigures {
    std::string side; // FX: 借 or 贷
    Amount debits, credits, balance;
    // BEGIN1: the balance at the beginning of the year, in the account's own direction. An account
    // of the debit side with balance 100, debits 30 and credits 10 began the year with 80.
    Amount year_opening() const;
};

// Debits against credits of all accounts.
struct BothSides {
    Amount debit, credit;
    // An amount in the direction of an account counts on that account's side.
    void add(const std::string& side, Amount amount);
    bool balanced() const { return debit == credit; }
    // "平衡", or by how much one side is above the other: "借方多 20.00".
    std::string verdict() const;
};

} // namespace module
