// FORMAT: numbers and dates after a pattern.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "engines/sqlite/conversion/stored.h"

namespace engines {

// Numbers: N, N2, F2, D4, P, or digits as 0 and #, thousands by a comma ("#,##0.00"). Dates:
// yyyy yy MM M dd d HH H hh h mm m ss s fff tt MMM MMMM ddd dddd, the letters d and D alone for
// the short and the long date. Nothing for a value that has no such form.
std::optional<std::string> format_value(const Stored& value, const tsql::Type& type,
                                        std::string_view pattern);

} // namespace engines
