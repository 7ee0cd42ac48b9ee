// Rows of the balance table: made for every account, added up along the chart.
#pragma once

#include <string>

#include "module/host_names.h"

namespace module {

// Kinds of rows, INX of D6602.
inline constexpr const char* movements = "0";
inline constexpr const char* closing_balance = "1";

// Every account of the chart gets a row of the kind. `period` is a quoted text.
std::string add_missing_balance_rows(const std::string& kind, const std::string& period);

// Every parent account becomes the sum of its children's rows of the kind, level by level from the
// leaves to the top. `prefix` "" means the amounts, "SY_" the part carried forward.
std::string roll_up_to_parents(const std::string& prefix, const std::string& kind,
                               const std::string& period);

} // namespace module
