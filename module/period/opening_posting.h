// The statements that open the books with the opening figures of the chart.
#pragma once

#include <string>

#include "host/values/date.h"
#include "module/host_names.h"

namespace module {

// When the books begin, and which rows keep what was before. A January start has no months of its
// own year before it: its year row and its balances are those of the year before.
//
//     chosen      first period  day         year row  balances of
//     2006-05-01  2006-05       2006-05-01  2006-00   2006-04
//     2006-05-12  2006-05       2006-05-12  2006-00   2006-05
//     2006-01-01  2006-01       2005-12-31  2005-00   2005-12
struct OpeningDay {
    explicit OpeningDay(Date chosen);
    std::string first_period, year_row, previous_month;
    Date day; // of the opening documents of customers and suppliers
};

// Empties vouchers, balances, receipts and payments; writes the year row and the balances before
// the start, rolls them up the chart and nets them on each account's own side; makes the opening
// documents of customers and suppliers and the empty rows of the first period. One batch.
std::string opening_batch(const OpeningDay& opening);

} // namespace module
