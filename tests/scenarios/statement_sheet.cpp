// The lines of a financial statement, worked out from its formulas.
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

Cents cents_of(const std::string& text) {
    const std::size_t point = text.find('.');
    if (point == std::string::npos) return 100 * std::stoll(text);
    return std::stoll(text.substr(0, point) + (text.substr(point + 1) + "00").substr(0, 2));
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

const StatementKind& balance_sheet() {
    static const StatementKind kind{
        .table = "D6830",
        .layouts = true,
        .columns = {{"年初", "A2", "A5"},
                    {"期末", "A2", "A6"},
                    {"年初", "B2", "B5"},
                    {"期末", "B2", "B6"}},
        .words = {{"年初", "1,'%Y'", "年初"}, {"期末", "0,'%P'", "期末"}}};
    return kind;
}

const StatementKind& income_statement() {
    static const StatementKind kind{.table = "D6832",
                                    .layouts = true,
                                    .columns = {{"本月", "A2", "A5"}, {"本年累计", "A2", "A6"}},
                                    .words = {{"本期借方累计", "2,'%P'", "本月"},
                                              {"本期贷方累计", "3,'%P'", "本月"},
                                              {"本年借方累计", "4,'%P'", "本年累计"},
                                              {"本年贷方累计", "5,'%P'", "本年累计"}}};
    return kind;
}

const StatementKind& cash_flow_statement() {
    static const StatementKind kind{
        .table = "D6831",
        .layouts = false,
        .columns = {{"本年累计", "A2", "A5"}, {"本月", "A2", "A6"}},
        .words = {{"年初", "1,'%Y'", ""},
                  {"期末", "0,'%P'", ""},
                  {"本期累计借方", "2,'%P'", ""},
                  {"本期累计贷方", "3,'%P'", ""}}};
    return kind;
}

StatementSheet::StatementSheet(Books& books, const StatementKind& kind, int layout,
                               std::string period)
    : books_(books), kind_(kind), period_(std::move(period)) {
    const std::string condition = kind.layouts ? " WHERE G=" + std::to_string(layout) : "";
    for (const Row& row : books.table(std::string("SELECT * FROM ") + kind.table + condition)) {
        for (const StatementKind::Column& column : kind.columns) {
            const std::string& line = row.at(column.line);
            if (line.empty() || line == "<null>") continue;
            const std::string& formula = row.at(column.formula);
            lines_[line][column.name].formula = formula == "<null>" ? "" : formula;
        }
    }
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
    const StatementKind::Word* word = first_word(text);
    if (text.starts_with("fd(")) return value(std::to_string(numbers_in(text).at(0)), word->column);
    if (text.starts_with("fsum(")) {
        return sum_of_lines(word->column, numbers_in(text).at(0), numbers_in(text).at(1));
    }
    return from_ledger(text);
}

const StatementKind::Word* StatementSheet::first_word(const std::string& text) const {
    for (const StatementKind::Word& one : kind_.words) {
        if (text.find(one.word) != std::string::npos) return &one;
    }
    throw std::invalid_argument("no period word in " + text);
}

Cents StatementSheet::sum_of_lines(const std::string& column, int from, int to) {
    Cents sum = 0;
    for (const auto& [line, cells] : lines_) {
        const int number = std::stoi(line);
        if (number >= from && number <= to && cells.contains(column)) sum += value(line, column);
    }
    return sum;
}

Cents StatementSheet::from_ledger(std::string call) {
    if (!call.starts_with("dbo.")) call.insert(0, "dbo.");
    for (const StatementKind::Word& one : kind_.words) call = with(call, one.word, one.meaning);
    call = with(with(call, "%P", period_), "%Y", period_.substr(0, 5) + "00");
    return cents_of(books_.value("select " + call + " as a "));
}

} // namespace tests
