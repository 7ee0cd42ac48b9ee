// Compares the recalculated statements with their formulas worked out from the voucher lines.
#pragma once

#include <cstddef>

#include "tests/scenarios/naive_ledger.h"
#include "tests/support/bookkeeper.h"

namespace tests {

// The bookkeeper recalculates the balance sheet, the income statement and the cash flow statement
// of the last period whose balances stand, in every layout; each amount must be what its formula
// gives when it is worked out from the voucher lines alone. The column of the year's beginning
// counts where no month of the year was passed over. Throws Difference; answers how many amounts
// were compared.
std::size_t compare_statements(Bookkeeper& anna, const NaiveLedger& ledger);

} // namespace tests
