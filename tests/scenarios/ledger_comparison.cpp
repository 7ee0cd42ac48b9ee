// Reads each ledger by the statement its form sends and holds it against the voucher lines.
#include "tests/scenarios/ledger_comparison.h"

#include <algorithm>
#include <set>

#include "module/ledgers/account_summary_query.h"
#include "module/ledgers/ledger_call.h"
#include "module/ledgers/trial_balance_query.h"
#include "tests/scenarios/book_comparison.h"
#include "tests/scenarios/months_comparison.h"
#include "tests/scenarios/period_figures.h"

namespace tests {

namespace {

using Amounts = std::vector<Cents>;

constexpr int deepest_level = 5;
const char* const first_code = "0";
const char* const last_code = "999999999";

std::string text_of(const Amounts& amounts) {
    std::string text;
    for (const Cents amount : amounts) text += (text.empty() ? "" : " ") + money(amount);
    return text;
}

// One period, all its readers.
class PeriodComparison {
public:
    PeriodComparison(Books& books, const NaiveLedger& ledger, const std::string& period)
        : books_(books), ledger_(ledger), expected_(ledger, period) {}

    std::size_t run() {
        balances();
        trial_balance();
        detailed_ledger(first_code, last_code);
        for (const auto& [code, account] : ledger_.chart())
            if (!ledger_.is_leaf(code)) detailed_ledger(code, code);
        general_ledger();
        account_summary();
        functions();
        ranges();
        cash_flow();
        return compared_;
    }

private:
    void balances();
    void trial_balance();
    void detailed_ledger(const std::string& first, const std::string& last);
    void opening_row(const std::string& what, const Row& row, Cents balance);
    void detailed_rows(const std::string& account, const Rows& rows);
    void general_ledger();
    void account_summary();
    void functions();
    void ranges();
    void cash_flow();

    const std::string& period() const { return expected_.period(); }
    // An amount on the account's own side.
    Cents own(const std::string& account, Cents on_debit) const {
        return ledger_.account(account).debit ? on_debit : -on_debit;
    }
    void same(const std::string& what, const Amounts& shown, const Amounts& expected) {
        if (shown != expected)
            throw Difference(what + " " + period() + ": shown " + text_of(shown) +
                             ", the lines give " + text_of(expected));
        compared_ += expected.size();
    }

    Books& books_;
    const NaiveLedger& ledger_;
    PeriodFigures expected_;
    std::size_t compared_ = 0;
};

Amounts amounts(const Row& row, const std::vector<std::string>& fields) {
    Amounts all;
    for (const std::string& field : fields) all.push_back(cents_of(row.at(field)));
    return all;
}

// ---- the balances themselves

// Closing is opening and turnover: the rows that were posted say what the lines say.
void PeriodComparison::balances() {
    for (const auto& [code, account] : ledger_.chart()) {
        const auto row = ledger_.balances().find({period(), code, 1});
        if (row == ledger_.balances().end()) continue; // opened later
        same("closing balance of " + code, {row->second.debit - row->second.credit},
             {expected_.of(code).closing});
    }
}

// ---- ledgers

void PeriodComparison::trial_balance() {
    std::set<std::string> shown;
    for (const Row& row :
         books_.table(module::trial_balance_query(*host::Period::parse(period()), deepest_level))) {
        const std::string& code = row.at("KM_ID");
        const PeriodSums sums = expected_.of(code);
        const bool debit = ledger_.account(code).debit;
        const auto side = [debit](Cents on_debit) {
            return debit ? Amounts{on_debit, 0} : Amounts{0, -on_debit};
        };
        same("trial balance, opening of " + code, amounts(row, {"B1", "B2"}), side(sums.opening));
        same("trial balance, turnover of " + code, amounts(row, {"C1", "C2"}),
             {sums.debit, sums.credit});
        same("trial balance, closing of " + code, amounts(row, {"D1", "D2"}), side(sums.closing));
        shown.insert(code);
    }
    for (const auto& [code, account] : ledger_.chart()) {
        const PeriodSums sums = expected_.of(code);
        if (sums.opening == 0 && sums.debit == 0 && sums.credit == 0) continue;
        if (!shown.contains(code)) throw Difference("trial balance " + period() + ": no " + code);
    }
}

void PeriodComparison::detailed_ledger(const std::string& first, const std::string& last) {
    std::map<std::string, Rows> by_account;
    const module::LedgerCall call{month_before(period()), "1", first, last, period(), period()};
    for (const Row& row : books_.table(module::detailed_ledger_call(call)))
        by_account[row.at("KM_ID")].push_back(row);
    for (const auto& [code, rows] : by_account) detailed_rows(code, rows);
    for (const std::string& leaf : ledger_.leaves())
        if (first != last && !by_account.contains(leaf))
            throw Difference("detailed ledger " + period() + ": no " + leaf);
}

// An opening row has a balance and no amounts.
void PeriodComparison::opening_row(const std::string& what, const Row& row, Cents balance) {
    if (row.at("J") != "<null>" || row.at("D") != "<null>")
        throw Difference(what + " " + period() + ": the opening row has amounts");
    same(what + ", opening", amounts(row, {"E"}), {balance});
}

// Opening, lines with the running balance, the period's sum, the year's sum.
void PeriodComparison::detailed_rows(const std::string& code, const Rows& rows) {
    const PeriodSums sums = expected_.of(code);
    const std::string what = "detailed ledger of " + code;
    if (rows.size() < 3) throw Difference(what + " " + period() + ": rows are missing");
    Cents balance = own(code, sums.opening);
    opening_row(what, rows.front(), balance);
    std::vector<Amounts> shown, expected;
    for (std::size_t i = 1; i + 2 < rows.size(); ++i) {
        const Amounts line = amounts(rows[i], {"J", "D"});
        shown.push_back(line);
        balance += own(code, line[0] - line[1]);
        same(what + ", running balance", amounts(rows[i], {"E"}), {balance});
    }
    for (const NaiveLine& line : expected_.lines_of(code))
        expected.push_back({line.debit, line.credit});
    std::sort(shown.begin(), shown.end());
    std::sort(expected.begin(), expected.end());
    if (shown != expected) throw Difference(what + " " + period() + ": other lines were posted");
    const Cents closing = own(code, sums.closing);
    same(what + ", period", amounts(rows[rows.size() - 2], {"J", "D", "E"}),
         {sums.debit, sums.credit, closing});
    same(what + ", year", amounts(rows.back(), {"J", "D", "E"}),
         {sums.year_debit, sums.year_credit, closing});
}

void PeriodComparison::general_ledger() {
    std::map<std::string, Rows> by_account;
    const module::LedgerCall call{month_before(period()), "0", first_code, last_code, period(),
                                  period()};
    for (const Row& row : books_.table(module::general_ledger_call(call, deepest_level)))
        by_account[row.at("KM_ID")].push_back(row);
    for (const auto& [code, account] : ledger_.chart()) {
        const PeriodSums sums = expected_.of(code);
        const std::string what = "general ledger of " + code;
        const Rows& rows = by_account[code];
        if (rows.empty()) throw Difference(what + " " + period() + ": missing");
        opening_row(what, rows[0], own(code, sums.opening));
        // An account opened after the period was posted has no turnover to show.
        if (!ledger_.balances().contains({period(), code, 0})) continue;
        if (rows.size() != 3) throw Difference(what + " " + period() + ": rows are missing");
        const Cents closing = own(code, sums.closing);
        same(what + ", period", amounts(rows[1], {"J", "D", "E"}),
             {sums.debit, sums.credit, closing});
        same(what + ", year", amounts(rows[2], {"J", "D", "E"}),
             {sums.year_debit, sums.year_credit, closing});
    }
}

void PeriodComparison::account_summary() {
    std::map<std::string, Amounts> shown;
    const std::string days = "(D6601.BDATE>='" + period() + "-01') AND (D6601.BDATE<'" +
                             month_after(period()) + "-01') AND (D6601.D=1)";
    for (const Row& row : books_.table(module::account_summary_query(days)))
        shown[row.at("KM_ID")] = amounts(row, {"J", "D"});
    for (const auto& [code, account] : ledger_.chart()) {
        if (account.parent != "Z") continue;
        const PeriodSums sums = expected_.of(code);
        const auto row = shown.find(code);
        if (row == shown.end() && expected_.lines_of(code).empty()) continue;
        same("account summary of " + code, row == shown.end() ? Amounts{} : row->second,
             {sums.debit, sums.credit});
    }
}

// ---- functions of the statements

void PeriodComparison::functions() {
    const std::string now = ",'" + period() + "',A.KM_ID,A.KM_ID) AS ";
    const std::string year = ",'" + period().substr(0, 5) + "00',A.KM_ID,A.KM_ID) AS ";
    std::string select = "SELECT A.KM_ID";
    for (const char* kind : {"0", "2", "3", "5", "6"})
        select += std::string(", dbo.FASC(") + kind + now + "F" + kind;
    for (const char* kind : {"0", "2", "3", "4", "5"})
        select += std::string(", dbo.fsy(") + kind + now + "S" + kind;
    select += ", dbo.fjf(0" + now + "JF, dbo.fdf(0" + now + "DF, dbo.FASC(1" + year + "F1";
    for (const Row& row : books_.table(select + " FROM D6801 A")) {
        const std::string& code = row.at("KM_ID");
        const PeriodSums sums = expected_.of(code);
        const Cents closing = own(code, sums.closing);
        same("FASC of " + code, amounts(row, {"F0", "F2", "F3", "F5", "F6"}),
             {closing, sums.debit, sums.credit, sums.opening_on_debit, sums.opening_on_credit});
        same("fsy of " + code, amounts(row, {"S0", "S2", "S3", "S4", "S5"}),
             {closing, sums.carried_debit, sums.carried_credit, sums.year_carried_debit,
              sums.year_carried_credit});
        same("fjf and fdf of " + code, amounts(row, {"JF", "DF"}),
             {sums.closing_on_debit, sums.closing_on_credit});
        if (expected_.year_is_whole())
            same("FASC of the year's beginning of " + code, amounts(row, {"F1"}),
                 {own(code, sums.closing - sums.year_debit + sums.year_credit)});
    }
}

// A range means the accounts in it whose parent is not, signed on the side of the lowest.
void PeriodComparison::ranges() {
    std::vector<std::string> top;
    for (const auto& [code, account] : ledger_.chart())
        if (account.parent == "Z") top.push_back(code);
    for (std::size_t width : {std::size_t{2}, std::size_t{5}, top.size()}) {
        const std::string& first = top[top.size() - width];
        PeriodSums sums;
        for (auto code = top.end() - static_cast<std::ptrdiff_t>(width); code != top.end(); ++code)
            sums += expected_.of(*code);
        const std::string range = ",'" + period() + "','" + first + "','" + top.back() + "')";
        const Rows rows = books_.table("SELECT dbo.FASC(0" + range + " AS F0, dbo.FASC(2" + range +
                                       " AS F2, dbo.fsy(4" + range + " AS S4, dbo.fjf(0" + range +
                                       " AS JF");
        same("functions of " + first + " to " + top.back(),
             amounts(rows.at(0), {"F0", "F2", "S4", "JF"}),
             {own(first, sums.closing), sums.debit, sums.year_carried_debit,
              sums.closing_on_debit});
    }
}

void PeriodComparison::cash_flow() {
    for (const auto& [first, last] : {std::pair{"1101", "1101"}, {"1101", "1109"},
                                      {"1201", "1209"}, {"2", "29"}, {"1", "9"}}) {
        const std::string items =
            ",'" + period() + "','" + std::string(first) + "','" + last + "') AS ";
        const Rows rows =
            books_.table("SELECT dbo.fxj(2" + items + "A, dbo.fxj(3" + items + "B, dbo.fxjn(2" +
                         items + "C, dbo.fxjn(3" + items + "D");
        const CashSums cash = expected_.cash(first, last);
        same("cash flow of " + std::string(first) + " to " + last,
             amounts(rows.at(0), {"A", "B", "C", "D"}),
             {cash.in, cash.out, cash.year_in, cash.year_out});
    }
}

} // namespace

std::size_t compare_ledgers(Books& books, const NaiveLedger& ledger) {
    std::size_t compared = 0;
    for (std::string period = ledger.first(); !period.empty() && period <= ledger.current();
         period = month_after(period))
        if (ledger.stands(period)) compared += PeriodComparison(books, ledger, period).run();
    return compared + compare_months(books, ledger);
}

} // namespace tests
