// Compares ledgers over several months, with vouchers not posted, and the journals.
#include "tests/scenarios/months_comparison.h"

#include <algorithm>
#include <set>

#include "module/ledgers/ledger_call.h"
#include "tests/scenarios/book_comparison.h"
#include "tests/scenarios/period_figures.h"

namespace tests {

namespace {

constexpr int deepest_level = 5;
const char* const first_code = "0";
const char* const last_code = "999999999";

using Months = std::vector<PeriodFigures>; // one after the other, of one year

bool is_line(const Row& row) {
    return row.at("INX") != "-1";
}

// The detailed ledger brings a balance forward from the year before by a name of its own.
std::string opening_words(const std::string& period) {
    return period.ends_with("-01") ? "上年结转" : "期初余额";
}

class MonthsComparison {
public:
    MonthsComparison(Books& books, const NaiveLedger& ledger, Months months, Counted counted)
        : books_(books), ledger_(ledger), months_(std::move(months)), counted_(counted) {}

    std::size_t run() {
        detailed_ledger(first_code, last_code);
        for (const auto& [code, account] : ledger_.chart()) {
            if (account.parent == "Z") detailed_ledger(code, code);
            if (account.cash) journal(code);
        }
        if (counted_ == Counted::Posted) general_ledger();
        return compared_;
    }

private:
    module::LedgerCall call(const std::string& first, const std::string& last) const {
        return {month_before(months_.front().period()),
                counted_ == Counted::Posted ? "1" : "0",
                first,
                last,
                months_.front().period(),
                months_.back().period()};
    }
    Cents own(const std::string& account, Cents on_debit) const {
        return ledger_.account(account).debit ? on_debit : -on_debit;
    }
    void same(const std::string& what, const std::string& shown, const std::string& expected) {
        ++compared_;
        if (shown == expected) return;
        throw Difference(what + " " + months_.front().period() + " to " +
                         months_.back().period() + ": shown “" + shown + "”, the lines give “" +
                         expected + "”");
    }
    // "本期合计 5.00 0.00 借 12.00"
    static std::string text_of(const Row& row) {
        return row.at("ZY") + " " + row.at("J") + " " + row.at("D") + " " + row.at("FX") + " " +
               row.at("E");
    }
    std::string sum_text(const std::string& words, const std::string& code, Cents debit,
                         Cents credit, Cents on_debit) const {
        const std::string side = ledger_.account(code).debit ? "借" : "贷";
        return words + " " + money(debit) + " " + money(credit) + " " +
               (on_debit == 0 ? "平" : side) + " " + money(own(code, on_debit));
    }
    // An opening row has a balance and no amounts.
    std::string opening_text(const std::string& words, const std::string& code,
                             Cents on_debit) const {
        const std::string side = ledger_.account(code).debit ? "借" : "贷";
        return words + " <null> <null> " + (on_debit == 0 ? "平" : side) + " " +
               money(own(code, on_debit));
    }
    std::map<std::string, Rows> by_account(const std::string& statement) {
        std::map<std::string, Rows> accounts;
        for (const Row& row : books_.table(statement)) accounts[row.at("KM_ID")].push_back(row);
        return accounts;
    }

    void detailed_ledger(const std::string& first, const std::string& last);
    void detailed_rows(const std::string& code, const Rows& rows);
    void month_rows(const std::string& code, const PeriodFigures& month, const Rows& rows,
                    std::size_t& at, Cents& balance);
    void general_ledger();
    void journal(const std::string& code);
    std::string other_side(const Row& line) const;

    Books& books_;
    const NaiveLedger& ledger_;
    Months months_;
    Counted counted_;
    std::size_t compared_ = 0;
};

// ---- the detailed ledger

void MonthsComparison::detailed_ledger(const std::string& first, const std::string& last) {
    const auto accounts = by_account(module::detailed_ledger_call(call(first, last)));
    for (const auto& [code, rows] : accounts) detailed_rows(code, rows);
    const std::size_t groups = first == last ? 1 : ledger_.leaves().size();
    same("accounts in the detailed ledger", std::to_string(accounts.size()),
         std::to_string(groups));
}

void MonthsComparison::detailed_rows(const std::string& code, const Rows& rows) {
    const Cents opening = months_.front().of(code).opening;
    same("detailed ledger of " + code, text_of(rows.at(0)),
         opening_text(opening_words(months_.front().period()), code, opening));
    Cents balance = opening;
    std::size_t at = 1;
    for (const PeriodFigures& month : months_) month_rows(code, month, rows, at, balance);
    same("rows of " + code, std::to_string(rows.size()), std::to_string(at));
}

// Lines with the running balance, the month's sum, the year's sum.
void MonthsComparison::month_rows(const std::string& code, const PeriodFigures& month,
                                  const Rows& rows, std::size_t& at, Cents& balance) {
    std::vector<std::pair<Cents, Cents>> shown, expected;
    for (; at < rows.size() && is_line(rows[at]); ++at) {
        const Row& row = rows[at];
        shown.emplace_back(cents_of(row.at("J")), cents_of(row.at("D")));
        balance += shown.back().first - shown.back().second;
        same("running balance of " + code, row.at("FX") + " " + row.at("E"),
             sum_text("", code, 0, 0, balance).substr(std::string(" 0.00 0.00 ").size()));
        same("line of " + code, row.at("NOID").substr(0, 7), month.period());
    }
    for (const NaiveLine& line : month.lines_of(code)) {
        expected.emplace_back(line.debit, line.credit);
    }
    std::sort(shown.begin(), shown.end());
    std::sort(expected.begin(), expected.end());
    if (shown != expected) {
        throw Difference("detailed ledger of " + code + " " + month.period() + ": other lines");
    }
    const PeriodSums sums = month.of(code);
    const std::string what = "sums of " + code + " in " + month.period();
    same(what, text_of(rows.at(at++)),
         sum_text("本期合计", code, sums.debit, sums.credit, balance));
    same(what, text_of(rows.at(at++)),
         sum_text("本年累计", code, sums.year_debit, sums.year_credit, balance));
}

// ---- the general ledger

// Opening, month and year of each month; idle accounts are left out when asked for.
void MonthsComparison::general_ledger() {
    const auto all = by_account(
        module::general_ledger_call(call(first_code, last_code), deepest_level));
    module::LedgerCall every = call(first_code, last_code);
    every.show = "0";
    const auto idle_too = by_account(module::general_ledger_call(every, deepest_level));
    for (const auto& [code, account] : ledger_.chart()) {
        std::vector<std::string> expected;
        bool moved = false;
        for (const PeriodFigures& month : months_) {
            const PeriodSums sums = month.of(code);
            expected.push_back(opening_text("期初余额", code, sums.opening));
            if (!ledger_.balances().contains({month.period(), code, 0})) continue; // opened later
            moved = moved || sums.debit != 0 || sums.credit != 0;
            expected.push_back(
                sum_text("本期合计", code, sums.debit, sums.credit, sums.closing));
            expected.push_back(
                sum_text("本年累计", code, sums.year_debit, sums.year_credit, sums.closing));
        }
        const Rows& rows = idle_too.at(code);
        same("rows of the general ledger of " + code, std::to_string(rows.size()),
             std::to_string(expected.size()));
        for (std::size_t at = 0; at < rows.size(); ++at) {
            same("general ledger of " + code, text_of(rows[at]), expected[at]);
        }
        same("turnover of " + code, all.contains(code) ? "moved" : "idle",
             moved ? "moved" : "idle");
    }
}

// ---- the journal

// Full names of the accounts with an amount on the other side of the line's voucher, by code.
std::string MonthsComparison::other_side(const Row& line) const {
    const bool debit = cents_of(line.at("J")) != 0;
    std::set<std::string> codes;
    for (const NaiveVoucher& voucher : ledger_.vouchers()) {
        if (voucher.key != line.at("NOID")) continue;
        for (const NaiveLine& one : voucher.lines) {
            if ((debit ? one.credit : one.debit) != 0) codes.insert(one.account);
        }
    }
    std::string names;
    for (const std::string& code : codes) {
        std::string name = code; // accounts are named by their codes
        for (std::string above = ledger_.account(code).parent; above != "Z";
             above = ledger_.account(above).parent) {
            name.insert(0, above + "-");
        }
        names += (names.empty() ? "" : ",") + name;
    }
    return names.empty() ? "<null>" : names;
}

void MonthsComparison::journal(const std::string& code) {
    module::LedgerCall journal = call(code, code);
    const Rows ledger = books_.table(module::detailed_ledger_call(journal));
    journal.last_account.reset();
    const Rows rows = books_.table(module::detailed_ledger_call(journal));
    same("rows of the journal of " + code, std::to_string(rows.size()),
         std::to_string(ledger.size()));
    for (std::size_t at = 0; at < rows.size(); ++at) {
        same("journal of " + code, text_of(rows[at]), text_of(ledger[at]));
        same("other side in the journal of " + code, rows[at].at("KM_ID_DF"),
             is_line(rows[at]) ? other_side(rows[at]) : "<null>");
    }
}

} // namespace

std::size_t compare_months(Books& books, const NaiveLedger& ledger) {
    std::vector<std::string> run;
    for (std::string period = ledger.first(); !period.empty() && period <= ledger.current();
         period = month_after(period)) {
        if (!ledger.stands(period)) continue;
        const bool goes_on = !run.empty() && run.back() == month_before(period) &&
                             run.back().substr(0, 4) == period.substr(0, 4);
        if (!goes_on) run.clear();
        run.push_back(period);
    }
    if (run.empty()) return 0;
    Months months;
    for (const std::string& period : run) months.emplace_back(ledger, period);
    std::size_t compared =
        MonthsComparison(books, ledger, std::move(months), Counted::Posted).run();
    Months last;
    last.emplace_back(ledger, run.back(), Counted::All);
    compared += MonthsComparison(books, ledger, std::move(last), Counted::All).run();
    return compared;
}

} // namespace tests
