// Opens the books at a period with the opening figures that the chart holds.
#pragma once

#include <string>

#include "host/values/date.h"

namespace app {

// One batch: sets the first and the current period, empties vouchers and balances, writes the
// opening rows of the year (its month 00) and the closing row of the month before, makes the
// opening documents of customers and suppliers, rolls the balances up the chart and makes the
// empty rows of the first period. `start` is the day the books begin.
std::string initial_posting(host::Date start);

} // namespace app
