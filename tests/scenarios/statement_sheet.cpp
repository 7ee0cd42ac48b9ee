// The lines of a balance sheet, worked out from its formulas with some of them replaced.
#include "tests/scenarios/statement_sheet.h"

#include <stdexcept>

namespace tests {

namespace {

std::string with(std::string text, const std::string& what, const std::string& instead) {
    for (std::size_t at = text.find(what); at != std::string::npos;
         at = text.find(what, at + instead.size())) {
        text.replace(at, what.size(), instead);
    }
    return text;
}

// "a+b(c,d)-e" → "a", "+b(c,d)", "-e": signs inside brackets part nothing.
std::vector<std::string> terms_of(const std::string& formula) {
    std::vector<std::string> terms(1);
    int depth = 0;
    for (const char letter : formula) {
        if (letter == '(') ++depth;
        if (letter == ')') --depth;
        if (depth == 0 && (letter == '+' || letter == '-') && !terms.back().empty()) {
            terms.emplace_back();
        }
        if (letter != ' ') terms.back() += letter;
    }
    return terms;
}

// The whole numbers behind the first comma of "fsum(年初,1,24)".
std::vector<int> numbers_in(const std::string& call) {
    std::vector<int> numbers;
    for (std::size_t at = call.find(','); at != std::string::npos; at = call.find(',', at + 1)) {
        numbers.push_back(std::stoi(call.substr(at + 1)));
    }
    return numbers;
}

} // namespace

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
    for (auto& [column, cell] : lines_.at(line)) cell = {with(formula, "%C", column)};
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
    Cents sum = 0;
    for (const std::string& text : terms_of(formula)) {
        if (text.empty()) continue;
        const bool sign = text[0] == '+' || text[0] == '-';
        const Cents amount = term(sign ? text.substr(1) : text);
        sum += text[0] == '-' ? -amount : amount;
    }
    return sum;
}

Cents StatementSheet::term(const std::string& text) {
    if (text.find('(') == std::string::npos) return cents_of(text);
    const std::string column = text.find("年初") != std::string::npos ? "年初" : "期末";
    if (text.starts_with("fd(")) return value(std::to_string(numbers_in(text).at(0)), column);
    if (text.starts_with("fsum(")) {
        return sum_of_lines(column, numbers_in(text).at(0), numbers_in(text).at(1));
    }
    return from_ledger(text);
}

Cents StatementSheet::sum_of_lines(const std::string& column, int from, int to) {
    Cents sum = 0;
    for (const auto& [line, cells] : lines_) {
        const int number = std::stoi(line);
        if (number >= from && number <= to) sum += value(line, column);
    }
    return sum;
}

Cents StatementSheet::from_ledger(std::string call) {
    call = with(call, "年初", "1,'" + period_.substr(0, 5) + "00'");
    call = with(call, "期末", "0,'" + period_ + "'");
    return cents_of(books_.value("select dbo." + call + " as a "));
}

} // namespace tests
