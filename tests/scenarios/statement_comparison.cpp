// Compares the recalculated statements with their formulas worked out from the voucher lines.
#include "tests/scenarios/statement_comparison.h"

#include <map>

#include "tests/scenarios/book_comparison.h"
#include "tests/scenarios/formula_reckoning.h"
#include "tests/scenarios/period_figures.h"

namespace tests {

namespace {

// Where a statement keeps an amount, its formula and the number of its line.
struct AmountColumn {
    const char* line;
    const char* amount;
    const char* formula;
    bool second; // the closing column, or the year to date
};

struct StatementShape {
    int code;
    const char* name;
    std::vector<std::string> layouts;
    std::vector<AmountColumn> columns;
};

const std::vector<StatementShape>& statement_shapes() {
    static const std::vector<StatementShape> shapes = {
        {671, "balance sheet", {"样式1", "样式2", "样式3"},
         {{"A2", "A3", "A5", false}, {"A2", "A4", "A6", true},
          {"B2", "B3", "B5", false}, {"B2", "B4", "B6", true}}},
        {673, "income statement", {"样式1", "样式2", "样式3"},
         {{"A2", "A3", "A5", false}, {"A2", "A4", "A6", true}}},
        {672, "cash flow statement", {""},
         {{"A2", "A3", "A5", false}, {"A2", "A4", "A6", true}}}};
    return shapes;
}

// Does the word mean the second column of its own statement?
bool means_second(int code, const std::string& word) {
    return code == 671 ? word != "年初" : word == "本年借方累计" || word == "本年贷方累计";
}

class StatementComparison {
public:
    StatementComparison(const NaiveLedger& ledger, const std::string& period)
        : ledger_(ledger), figures_(ledger, period) {}

    std::size_t compare(const StatementShape& shape, const std::string& layout, const Rows& rows) {
        code_ = shape.code;
        formulas_.clear();
        for (const Row& row : rows) {
            for (const AmountColumn& column : shape.columns) {
                if (row.at(column.line).empty()) continue;
                formulas_[{std::stoi(row.at(column.line)), column.second}] =
                    row.at(column.formula);
            }
        }
        std::size_t compared = 0;
        for (const Row& row : rows) {
            for (const AmountColumn& column : shape.columns) {
                const std::string& formula = row.at(column.formula);
                if (formula.empty()) continue;
                if (formula.find("年初") != std::string::npos && !figures_.year_is_whole()) {
                    continue;
                }
                const Cents expected = amount_of(formula);
                if (cents_of(row.at(column.amount)) != expected) {
                    throw Difference(std::string(shape.name) + " " + layout + " " +
                                     figures_.period() + ", line " + row.at(column.line) + ", " +
                                     formula + ": shown " + row.at(column.amount) +
                                     ", the lines give " + money(expected));
                }
                ++compared;
            }
        }
        return compared;
    }

private:
    Cents amount_of(const std::string& formula) {
        return reckon(formula, [this](const FormulaCall& call) { return value(call); });
    }
    Cents value(const FormulaCall& call);
    Cents lines(const std::string& word, int first, int last);
    Cents balance(const std::string& word, const std::string& first, const std::string& last);
    PeriodSums meant(const std::string& first, const std::string& last) const;

    const NaiveLedger& ledger_;
    PeriodFigures figures_;
    int code_ = 0;
    std::map<std::pair<int, bool>, std::string> formulas_; // by line and column
};

Cents StatementComparison::value(const FormulaCall& call) {
    const std::string& word = call.arguments.at(0);
    const auto number = [&](std::size_t at) { return std::stoi(call.arguments.at(at)); };
    if (call.name == "fd") return lines(word, number(1), number(1));
    if (call.name == "fsum") return lines(word, number(1), number(2));
    const std::string &first = call.arguments.at(1), &last = call.arguments.at(2);
    if (call.name == "fasc") return balance(word, first, last);
    if (call.name == "fsy") {
        const PeriodSums sums = meant(first, last);
        if (word == "本期借方累计") return sums.carried_debit;
        if (word == "本期贷方累计") return sums.carried_credit;
        return word == "本年借方累计" ? sums.year_carried_debit : sums.year_carried_credit;
    }
    const CashSums cash = figures_.cash(first, last);
    const bool in = word == "本期累计借方";
    if (call.name == "dbo.fxj") return in ? cash.in : cash.out;
    if (call.name == "dbo.fxjn") return in ? cash.year_in : cash.year_out;
    throw std::invalid_argument("no function of statements: " + call.name);
}

Cents StatementComparison::lines(const std::string& word, int first, int last) {
    const bool second = means_second(code_, word);
    Cents sum = 0;
    for (const auto& [place, formula] : formulas_) {
        const auto& [line, column] = place;
        if (line >= first && line <= last && column == second && !formula.empty()) {
            sum += amount_of(formula);
        }
    }
    return sum;
}

// The accounts in the range whose parent is not: their sums, on the debit side.
PeriodSums StatementComparison::meant(const std::string& first, const std::string& last) const {
    PeriodSums sums;
    for (const auto& [code, account] : ledger_.chart()) {
        const auto inside = [&](const std::string& one) { return one >= first && one <= last; };
        if (inside(code) && (account.parent == "Z" || !inside(account.parent))) {
            sums += figures_.of(code);
        }
    }
    return sums;
}

// On the side of the lowest account in the range.
Cents StatementComparison::balance(const std::string& word, const std::string& first,
                                   const std::string& last) {
    const auto lowest = ledger_.chart().lower_bound(first);
    if (lowest == ledger_.chart().end() || lowest->first > last) return 0;
    const PeriodSums sums = meant(first, last);
    const Cents on_debit =
        word == "年初" ? sums.closing - sums.year_debit + sums.year_credit : sums.closing;
    return lowest->second.debit ? on_debit : -on_debit;
}

} // namespace

std::size_t compare_statements(Bookkeeper& anna, const NaiveLedger& ledger) {
    std::string last;
    for (std::string period = ledger.first(); !period.empty() && period <= ledger.current();
         period = month_after(period)) {
        if (ledger.stands(period)) last = period;
    }
    if (last.empty()) return 0;
    StatementComparison comparison(ledger, last);
    std::size_t compared = 0;
    for (const StatementShape& shape : statement_shapes()) {
        for (const std::string& layout : shape.layouts) {
            compared +=
                comparison.compare(shape, layout, anna.statement(shape.code, layout, last));
        }
    }
    return compared;
}

} // namespace tests
