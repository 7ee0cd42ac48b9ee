// A cell as plain text: the form that the command line and the automation interface print.
#pragma once

#include <string>

#include "engines/value.h"

namespace engines {

// Appends the value: decimal with its scale, real in its shortest exact form with ".0" when whole,
// datetime as "YYYY-MM-DD hh:mm:ss.fff", date as "YYYY-MM-DD", bit as 0 or 1, binary as 0x….
// A null appends nothing; ask is_null() first.
//
// Example: Value::decimal(-5, 2) gives "-0.05"; Value::real(80) gives "80.0".
void append_text(const Value& value, std::string& out);

std::string text_of(const Value& value);

// Appends an unscaled decimal, for instance (-5, 2) as "-0.05".
void append_decimal(Int128 unscaled, int scale, std::string& out);

} // namespace engines
