// Two ledgers written by hand: queries by index, balances and sums added up in C++.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "bench/hand/connection.h"
#include "host/ports/data_port.h"
#include "host/values/period.h"

namespace bench::hand {

// Debit and credit of a row, in cents.
struct Sums {
    std::int64_t debit, credit;
};

// Opening, the lines of one month with the running balance, the month's sum, the year's sum, of an
// account that takes entries: the columns of SYS_685.
class DetailedLedger {
public:
    explicit DetailedLedger(const std::string& file);
    void read(const std::string& account, const host::Period& period, host::RowReceiver& receiver);

private:
    void read_lines(host::RowReceiver& receiver);
    void show_sum(const char* words, const std::optional<Sums>& sums,
                  host::RowReceiver& receiver);
    void show_balance();

    Connection connection_;
    Statement account_, opening_, year_, lines_;
    std::vector<host::CellView> cells_;
    std::string code_, name_, side_, number_;
    std::int64_t sign_ = 1, balance_ = 0, debit_ = 0, credit_ = 0; // cents
};

// Opening, turnover and sum of the year, by account up to a level and month of a year; accounts
// without turnover are left out: the columns of SYS_686.
class GeneralLedger {
public:
    explicit GeneralLedger(const std::string& file);
    void read(const std::string& first, const std::string& last, int level, int year,
              host::RowReceiver& receiver);

private:
    // What is kept of an account and month; a month that was not posted has moved nothing.
    struct Month {
        bool moved = false;
        std::int64_t debit = 0, credit = 0, balance = 0; // cents, the balance on the account's side
    };
    bool read_months(std::string_view account, std::int64_t sign);
    void show_months(std::string_view side, host::RowReceiver& receiver);
    void show(std::string_view side, std::int64_t balance, const char* words,
              const std::optional<Sums>& sums, host::RowReceiver& receiver);

    Connection connection_;
    Statement accounts_, months_;
    std::vector<host::CellView> cells_;
    std::array<std::string, 13> periods_; // [0] the one before the year
    std::string year_begin_;
    std::array<Month, 13> read_;
    std::int64_t year_debit_ = 0, year_credit_ = 0; // moved before the year's first month
};

} // namespace bench::hand
