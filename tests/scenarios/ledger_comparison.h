// Compares what the ledgers and the statements' functions say with the voucher lines.
#pragma once

#include <cstddef>

#include "tests/scenarios/naive_ledger.h"
#include "tests/support/books.h"

namespace tests {

// In every period whose balances stand, the trial balance, the detailed and the general ledger, the
// account summary and the functions that statements are made of must tell of every account what
// adding up the posted voucher lines gives, and so agree with each other: openings, turnover, the
// year's turnover, closing balances, the part that was carried forward, what was allocated to
// cash-flow items. The same over several months (`months_comparison.h`). Throws Difference; answers
// how many amounts were compared.
std::size_t compare_ledgers(Books& books, const NaiveLedger& ledger);

} // namespace tests
