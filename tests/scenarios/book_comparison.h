// Compares the tables of a set of books with the plain ledger, row by row.
#pragma once

#include <cstddef>
#include <stdexcept>

#include "tests/scenarios/naive_ledger.h"
#include "tests/support/books.h"

namespace tests {

// The program and the plain ledger say different things; what() names the row and both figures.
struct Difference : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Periods, vouchers with their states, lines, cash-flow allocations, and all balances: a row that
// is missing or one too many counts as a difference too. Answers how many amounts of balances were
// compared.
std::size_t compare_books(Books& books, const NaiveLedger& ledger);

} // namespace tests
