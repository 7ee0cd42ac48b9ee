// The formula of a statement's cell, and the query it becomes.
#include "module/statements/statement_formula.h"

#include "host/values/sql_text.h"
#include "host/values/text.h"

namespace module {

namespace {

// The opening of a year is kept as its month 00.
std::string opening_of_year(const std::string& period) {
    return first_characters(period, 5) + "00";
}

std::string arguments(const PeriodWord& word, const std::string& period) {
    return std::to_string(word.kind) + "," +
           quoted(word.beginning_of_year ? opening_of_year(period) : period);
}

std::string call(const StatementFunction& function, int layout) {
    return function.of_layout ? function.sent + std::to_string(layout) + "," : function.sent;
}

} // namespace

std::string cell_query(const std::string& formula, const FormulaWords& words,
                       const StatementMoment& moment) {
    std::string expression = formula;
    for (const PeriodWord& word : words.periods)
        expression = replaced(expression, word.written, arguments(word, moment.period));
    for (const StatementFunction& function : words.functions)
        expression = replaced(expression, function.written, call(function, moment.layout));
    return "select " + expression + " as a ";
}

bool refers_to_lines(const std::string& formula) {
    return formula.find("fd(") != std::string::npos || formula.find("fsum(") != std::string::npos;
}

} // namespace module
