// What a period's ledgers must show, added up from the voucher lines.
#include "tests/scenarios/period_figures.h"

#include <algorithm>

namespace tests {

namespace {

bool is_carry_forward(const NaiveVoucher& voucher) {
    return std::any_of(voucher.lines.begin(), voucher.lines.end(),
                       [](const NaiveLine& line) { return line.account == "3131"; });
}

} // namespace

PeriodSums& PeriodSums::operator+=(const PeriodSums& more) {
    opening += more.opening, closing += more.closing;
    debit += more.debit, credit += more.credit;
    year_debit += more.year_debit, year_credit += more.year_credit;
    carried_debit += more.carried_debit, carried_credit += more.carried_credit;
    year_carried_debit += more.year_carried_debit, year_carried_credit += more.year_carried_credit;
    opening_on_debit += more.opening_on_debit, opening_on_credit += more.opening_on_credit;
    closing_on_debit += more.closing_on_debit, closing_on_credit += more.closing_on_credit;
    return *this;
}

PeriodFigures::PeriodFigures(const NaiveLedger& ledger, const std::string& period,
                             Counted counted)
    : ledger_(ledger), period_(period) {
    for (const std::string& leaf : ledger.leaves()) {
        PeriodSums& sums = leaves_[leaf];
        take_opening(leaf, sums);
        take_year_begin(leaf, sums);
    }
    for (const NaiveVoucher& voucher : ledger.vouchers()) {
        const bool this_year = voucher.period.substr(0, 4) == period.substr(0, 4);
        const bool counts = voucher.posted || (counted == Counted::All && voucher.period == period);
        if (!counts || !this_year || voucher.period > period) continue;
        take_lines(voucher);
        take_cash(voucher);
    }
    for (auto& [leaf, sums] : leaves_) {
        sums.closing = sums.opening + sums.debit - sums.credit;
        sums.opening_on_debit = std::max<Cents>(sums.opening, 0);
        sums.opening_on_credit = std::max<Cents>(-sums.opening, 0);
        sums.closing_on_debit = std::max<Cents>(sums.closing, 0);
        sums.closing_on_credit = std::max<Cents>(-sums.closing, 0);
    }
}

// A period begins with what the one before closed with.
void PeriodFigures::take_opening(const std::string& leaf, PeriodSums& sums) const {
    const auto row = ledger_.balances().find({month_before(period_), leaf, 1});
    if (row != ledger_.balances().end()) sums.opening = row->second.debit - row->second.credit;
}

// What moved in the year before the books began.
void PeriodFigures::take_year_begin(const std::string& leaf, PeriodSums& sums) const {
    const auto row = ledger_.balances().find({period_.substr(0, 5) + "00", leaf, 0});
    if (row == ledger_.balances().end()) return;
    sums.year_debit = row->second.debit;
    sums.year_credit = row->second.credit;
    sums.year_carried_debit = row->second.carried_debit;
    sums.year_carried_credit = row->second.carried_credit;
}

void PeriodFigures::take_lines(const NaiveVoucher& voucher) {
    const bool here = voucher.period == period_;
    const bool carried = is_carry_forward(voucher);
    for (const NaiveLine& line : voucher.lines) {
        PeriodSums& sums = leaves_.at(line.account);
        sums.year_debit += line.debit, sums.year_credit += line.credit;
        if (carried)
            sums.year_carried_debit += line.credit, sums.year_carried_credit += line.debit;
        if (!here) continue;
        lines_.push_back(line);
        sums.debit += line.debit, sums.credit += line.credit;
        if (carried) sums.carried_debit += line.credit, sums.carried_credit += line.debit;
    }
}

void PeriodFigures::take_cash(const NaiveVoucher& voucher) {
    const bool here = voucher.period == period_;
    for (const auto& [item, share] : voucher.cash) {
        CashSums& sums = cash_[item];
        sums.year_in += share.in, sums.year_out += share.out;
        if (here) sums.in += share.in, sums.out += share.out;
    }
}

CashSums PeriodFigures::cash(const std::string& first_item, const std::string& last_item) const {
    CashSums all;
    for (const auto& [item, sums] : cash_) {
        if (item < first_item || item > last_item) continue;
        all.in += sums.in, all.out += sums.out;
        all.year_in += sums.year_in, all.year_out += sums.year_out;
    }
    return all;
}

bool PeriodFigures::year_is_whole() const {
    std::string month = period_.substr(0, 5) + "01";
    if (month <= ledger_.first()) {
        if (ledger_.opened_inside_a_month()) return false;
        month = ledger_.first();
    }
    for (; month < period_; month = month_after(month))
        if (!ledger_.stands(month)) return false;
    return true;
}

PeriodSums PeriodFigures::of(const std::string& account) const {
    PeriodSums all;
    for (const auto& [leaf, sums] : leaves_)
        if (ledger_.stands_below(leaf, account)) all += sums;
    return all;
}

std::vector<NaiveLine> PeriodFigures::lines_of(const std::string& account) const {
    std::vector<NaiveLine> chosen;
    for (const NaiveLine& line : lines_)
        if (ledger_.stands_below(line.account, account)) chosen.push_back(line);
    return chosen;
}

} // namespace tests
