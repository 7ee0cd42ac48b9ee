// Two ledgers written by hand: queries by index, balances and sums added up in C++.
#pragma once

#include <array>

#include "bench/hand/connection.h"
#include "host/values/period.h"

namespace bench::hand {

// What a ledger showed: its rows, and the sums of its debits, credits and balances in cents, to
// hold the other side against. Every cell was read.
struct LedgerSums {
    int rows = 0;
    std::int64_t debit = 0, credit = 0, balance = 0;
    std::size_t text = 0; // bytes of the texts shown
    void add(std::int64_t row_debit, std::int64_t row_credit, std::int64_t row_balance) {
        ++rows, debit += row_debit, credit += row_credit, balance += row_balance;
    }
    std::array<std::int64_t, 3> sums() const { return {debit, credit, balance}; }
};

// Opening, the lines of one month with the running balance, the month's sum, the year's sum.
class DetailedLedger {
public:
    explicit DetailedLedger(const std::string& file);
    LedgerSums read(const std::string& account, const host::Period& period);

private:
    Connection connection_;
    Statement account_, opening_, year_, lines_;
};

// Opening, turnover and sum of the year, by account at the top and month of a year; accounts
// without turnover are left out.
class GeneralLedger {
public:
    explicit GeneralLedger(const std::string& file);
    LedgerSums read(const std::string& first, const std::string& last, int year);

private:
    Connection connection_;
    Statement accounts_, months_;
};

} // namespace bench::hand
