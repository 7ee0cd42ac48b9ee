// What a period's ledgers must show, added up from the voucher lines.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/scenarios/naive_ledger.h"

namespace tests {

struct PeriodSums {
    Cents opening = 0, closing = 0;              // on the debit side
    Cents debit = 0, credit = 0;                 // posted lines of the period
    Cents year_debit = 0, year_credit = 0;       // with the year's opening movements
    Cents carried_debit = 0, carried_credit = 0; // of the carry-forward, sides swapped
    Cents year_carried_debit = 0, year_carried_credit = 0;
    // By the side on which the balance of each account that takes entries lies.
    Cents opening_on_debit = 0, opening_on_credit = 0;
    Cents closing_on_debit = 0, closing_on_credit = 0;
    PeriodSums& operator+=(const PeriodSums& more);
};

// What was allocated to cash-flow items: in the period, and from the year's first month on.
struct CashSums {
    Cents in = 0, out = 0;
    Cents year_in = 0, year_out = 0;
};

// Which vouchers of the period count; earlier periods count as they were posted.
enum class Counted { Posted, All };

// The figures of every account that takes entries in one period, and of any account above them.
class PeriodFigures {
public:
    PeriodFigures(const NaiveLedger& ledger, const std::string& period,
                  Counted counted = Counted::Posted);

    const std::string& period() const { return period_; }
    PeriodSums of(const std::string& account) const; // with everything below it
    // The counted lines of the period on the account and everything below it.
    std::vector<NaiveLine> lines_of(const std::string& account) const;
    CashSums cash(const std::string& first_item, const std::string& last_item) const;
    // No month of the year up to here was passed over, and the books began with a month: then the
    // year's beginning and its movements lead to the closing balances.
    bool year_is_whole() const;

private:
    void take_opening(const std::string& leaf, PeriodSums& sums) const;
    void take_year_begin(const std::string& leaf, PeriodSums& sums) const;
    void take_lines(const NaiveVoucher& voucher);
    void take_cash(const NaiveVoucher& voucher);

    const NaiveLedger& ledger_;
    std::string period_;
    std::map<std::string, PeriodSums> leaves_;
    std::vector<NaiveLine> lines_;
    std::map<std::string, CashSums> cash_; // by item
};

} // namespace tests
