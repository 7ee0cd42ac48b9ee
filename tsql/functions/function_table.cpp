// The table of built-in functions, sorted as the server's manual groups them.
#include "tsql/functions/function_table.h"

#include <algorithm>
#include <array>

namespace tsql {

namespace {

using Result = FunctionResult;

constexpr FunctionRule rules[] = {
    // Texts.
    {"ASCII", "t", Result::Int},
    {"CHAR", "i", Result::LongText},
    {"CHARINDEX", "tt?i", Result::Int},
    {"DATALENGTH", "a", Result::Int},
    {"FORMAT", "at", Result::National},
    {"LEFT", "ti", Result::SameText},
    {"LEN", "t", Result::Int},
    {"LOWER", "t", Result::SameText},
    {"LTRIM", "t", Result::SameText},
    {"NCHAR", "i", Result::National},
    {"PATINDEX", "tt", Result::Int},
    {"QUOTENAME", "t?t", Result::National},
    {"REPLACE", "ttt", Result::LongText},
    {"REPLICATE", "ti", Result::LongText},
    {"REVERSE", "t", Result::SameText},
    {"RIGHT", "ti", Result::SameText},
    {"RTRIM", "t", Result::SameText},
    {"SPACE", "i", Result::LongText},
    {"STR", "f?ii", Result::LongText},
    {"STUFF", "tiit", Result::LongText},
    {"SUBSTRING", "tii", Result::SameText},
    {"TRIM", "t", Result::SameText},
    {"UNICODE", "t", Result::Int},
    {"UPPER", "t", Result::SameText},
    // Numbers.
    {"ABS", "n", Result::SameNumber},
    {"ATAN", "f", Result::Float},
    {"CEILING", "n", Result::ScaleZero},
    {"COS", "f", Result::Float},
    {"EXP", "f", Result::Float},
    {"FLOOR", "n", Result::ScaleZero},
    {"LOG", "f", Result::Float},
    {"LOG10", "f", Result::Float},
    {"PI", "", Result::Float},
    {"POWER", "nf", Result::SameNumber},
    {"RAND", "?i", Result::Float},
    {"ROUND", "ni?i", Result::SameNumber},
    {"SIGN", "n", Result::SameNumber},
    {"SIN", "f", Result::Float},
    {"SQRT", "f", Result::Float},
    {"TAN", "f", Result::Float},
    // Dates.
    {"DATEFROMPARTS", "iii", Result::Date},
    {"DAY", "d", Result::Int},
    {"EOMONTH", "d?i", Result::Date},
    {"MONTH", "d", Result::Int},
    {"YEAR", "d", Result::Int},
    // Tests, objects.
    {"IDENT_CURRENT", "t", Result::BigInt},
    {"INDEXPROPERTY", "itt", Result::Int},
    {"ISDATE", "t", Result::Int},
    {"ISNUMERIC", "a", Result::Int},
    {"NEWID", "", Result::Guid},
    {"OBJECT_DEFINITION", "i", Result::NationalMax},
    {"OBJECT_ID", "t?t", Result::Int},
    {"OBJECT_NAME", "i", Result::National},
};

struct NamedPart {
    std::string_view word;
    std::string_view part;
};

constexpr std::array<NamedPart, 30> parts{{
    {"year", "year"},        {"yy", "year"},           {"yyyy", "year"},
    {"quarter", "quarter"},  {"qq", "quarter"},        {"q", "quarter"},
    {"month", "month"},      {"mm", "month"},          {"m", "month"},
    {"dayofyear", "dayofyear"}, {"dy", "dayofyear"},   {"y", "dayofyear"},
    {"day", "day"},          {"dd", "day"},            {"d", "day"},
    {"week", "week"},        {"wk", "week"},           {"ww", "week"},
    {"weekday", "weekday"},  {"dw", "weekday"},        {"w", "weekday"},
    {"hour", "hour"},        {"hh", "hour"},           {"minute", "minute"},
    {"mi", "minute"},        {"n", "minute"},          {"second", "second"},
    {"ss", "second"},        {"s", "second"},          {"millisecond", "millisecond"},
}};

} // namespace

const FunctionRule* function_rule(std::string_view upper_case_name) {
    const auto* found = std::find_if(std::begin(rules), std::end(rules), [&](const auto& rule) {
        return rule.name == upper_case_name;
    });
    return found == std::end(rules) ? nullptr : found;
}

std::string_view date_part(std::string_view word) {
    for (const NamedPart& named : parts) {
        const bool same = word.size() == named.word.size() &&
                          std::equal(word.begin(), word.end(), named.word.begin(),
                                     [](char a, char b) {
                                         return (a >= 'A' && a <= 'Z' ? a + 32 : a) == b;
                                     });
        if (same) {
            return named.part;
        }
    }
    return word == "ms" || word == "MS" ? std::string_view("millisecond") : std::string_view();
}

} // namespace tsql
