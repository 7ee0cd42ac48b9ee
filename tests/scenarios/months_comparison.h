// Compares ledgers over several months, with vouchers not posted, and the journals.
#pragma once

#include <cstddef>

#include "tests/scenarios/naive_ledger.h"
#include "tests/support/books.h"

namespace tests {

// The last run of months of one year whose balances stand, in one call: the detailed and the
// general ledger must show of each account what the months show one by one, the balance running on
// from month to month. The month of that run's end once more with the vouchers that are not posted.
// The journal of each cash account has the ledger's lines with the accounts of the other side.
// Throws Difference; answers how many amounts were compared.
std::size_t compare_months(Books& books, const NaiveLedger& ledger);

} // namespace tests
