// The lines of a balance sheet, worked out from its formulas with some of them replaced.
#include "tests/scenarios/statement_sheet.h"

#include <stdexcept>

#include "host/values/text.h"

namespace tests {

StatementSheet::StatementSheet(Books& books, int layout, std::string period)
    : books_(books), period_(std::move(period)) {
    for (const Row& row : books.table("SELECT A2,A5,A6,B2,B5,B6 FROM D6830 WHERE G=" +
                                      std::to_string(layout))) {
        take_half(row, "A2", "A5", "A6");
        take_half(row, "B2", "B5", "B6");
    }
}

void StatementSheet::take_half(const Row& row, const char* line, const char* year_begin,
                               const char* closing) {
    const auto text = [&](const char* field) {
        return row.at(field) == "<null>" ? std::string() : row.at(field);
    };
    if (text(line).empty()) return;
    lines_[text(line)] = {{"年初", {text(year_begin)}}, {"期末", {text(closing)}}};
}

void StatementSheet::replace(const std::string& line, const std::string& formula) {
    for (auto& [column, cell] : lines_.at(line)) cell = {host::replaced(formula, "%C", column)};
}

Cents StatementSheet::value(const std::string& line, const std::string& column) {
    const auto found = lines_.find(line);
    if (found == lines_.end()) throw std::out_of_range("no line " + line);
    Cell& cell = found->second.at(column);
    if (!cell.known) {
        cell.amount = evaluate(cell.formula);
        cell.known = true;
    }
    return cell.amount;
}

Cents StatementSheet::evaluate(const std::string& formula) {
    return reckon(formula, [this](const FormulaCall& call) { return amount_of(call); });
}

Cents StatementSheet::amount_of(const FormulaCall& call) {
    const std::string& column = call.arguments.at(0); // the word stands for it
    if (call.name == "fd") return value(call.arguments.at(1), column);
    if (call.name == "fsum") {
        return sum_of_lines(column, std::stoi(call.arguments.at(1)),
                            std::stoi(call.arguments.at(2)));
    }
    return from_ledger(call);
}

Cents StatementSheet::sum_of_lines(const std::string& column, int from, int to) {
    Cents sum = 0;
    for (const auto& [line, cells] : lines_) {
        const int number = std::stoi(line);
        if (number >= from && number <= to) sum += value(line, column);
    }
    return sum;
}

Cents StatementSheet::from_ledger(const FormulaCall& call) {
    const std::string period = call.arguments.at(0) == "年初"
                                   ? "1,'" + period_.substr(0, 5) + "00'"
                                   : "0,'" + period_ + "'";
    return cents_of(books_.value("select dbo." + call.name + "(" + period + ",'" +
                                 call.arguments.at(1) + "','" + call.arguments.at(2) +
                                 "') as a "));
}

} // namespace tests
