// The built-in functions whose binding a table can say: how many arguments, of which type.
#pragma once

#include <string_view>

namespace tsql {

// What a function gives.
enum class FunctionResult : unsigned char {
    SameText,   // a text as long as its first argument
    LongText,   // a text of unknown length, national when an argument is
    Int,
    BigInt,
    Float,
    DateTime,
    Date,
    Guid,
    National,   // nvarchar
    NationalMax, // nvarchar(max)
    SameNumber, // the type of its first argument
    ScaleZero,  // its first argument without decimals: CEILING and FLOOR
};

// `arguments` says for each argument what it is brought to: t text, i int, f float, d datetime,
// n a number of any type, a anything. What stands behind '?' may be left out.
struct FunctionRule {
    std::string_view name; // upper case
    std::string_view arguments;
    FunctionResult result;
};

// Null when the function is not in the table.
const FunctionRule* function_rule(std::string_view upper_case_name);

// The date part a word names, written out in lower case ("day" for dd, d and day); empty when it
// names none.
std::string_view date_part(std::string_view word);

} // namespace tsql
