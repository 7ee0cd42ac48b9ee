// Conversion of a value from any type to any other by the server's rules.
#pragma once

#include <string>

#include "engines/sqlite/conversion/stored.h"

namespace engines {

// What happens to a text that is too long for its target.
enum class Fit : std::uint8_t {
    cut,   // CAST, CONVERT, variables, parameters
    refuse // columns: error 8152, but blanks beyond the end are dropped
};

// The value in the type to; null stays null. style is the third argument of CONVERT. buffer holds
// the characters of a result that is text or bytes, and must live as long as the result is used.
// A value that does not convert throws Failure: 245 and 248 text to integer, 8114 text to decimal
// or float, 235 text to money, 241 and 242 text to date, 8115, 220 and 232 too large, 8169 text to
// uniqueidentifier, 8152 too long.
//
// Example: "2.675" from varchar(10) to decimal(18,2) gives 268.
Stored convert(const Stored& value, const tsql::Type& from, const tsql::Type& to, int style,
               Fit fit, std::string& buffer);

// The parts of it, one for each family of targets; value is not null.
Int128 convert_to_integer(const Stored& value, const tsql::Type& from, const tsql::Type& to);
Int128 convert_to_decimal(const Stored& value, const tsql::Type& from, const tsql::Type& to);
double convert_to_float(const Stored& value, const tsql::Type& from, const tsql::Type& to);
Int128 convert_to_date(const Stored& value, const tsql::Type& from, const tsql::Type& to,
                       int style);
std::string_view convert_to_text(const Stored& value, const tsql::Type& from, const tsql::Type& to,
                                 int style, Fit fit, std::string& buffer);
std::string_view convert_to_bytes(const Stored& value, const tsql::Type& from, const tsql::Type& to,
                                  Fit fit, std::string& buffer);
std::string_view convert_to_guid(const Stored& value, const tsql::Type& from, std::string& buffer);

// Money from text: signs of currency and commas are allowed, the empty text is 0. Error 235.
Int128 money_from_text(std::string_view text);
// A float from text; false when it is none.
bool parse_float(std::string_view text, double& value);

// ISNUMERIC of a text: whether it converts to int, decimal, money or float.
bool is_numeric(std::string_view text);

} // namespace engines
