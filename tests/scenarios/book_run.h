// Random books kept twice: by the program's forms and by plain addition.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "tests/scenarios/book_plan.h"
#include "tests/support/books.h"

namespace tests {

struct BookVerdict {
    std::string difference;   // "" when both agree everywhere
    std::size_t steps = 0;    // carried out until then
    std::size_t vouchers = 0; // typed
    std::size_t allocated = 0; // of them, to cash-flow items
    std::size_t reversed = 0; // in red
    std::size_t figures = 0;  // amounts of balances compared
    std::size_t ledger_figures = 0; // amounts of ledgers and functions, at the end
    std::size_t statement_figures = 0; // amounts of statements, the same
    bool audited = false;     // every month was posted in turn, and the audit found nothing
};

// Fresh books with the small chart that wait for their opening; in memory where the machine has a
// folder for that, as thousands of them are made.
BooksOptions small_books(int words, bool strict = false);

// Makes fresh books, carries the plan out through the driver, and compares periods, vouchers, lines
// and every row of the balances after each step; at the end all ledgers of all periods and the
// statements of the last one, and the audit looks at books whose months were posted in turn.
BookVerdict keep_books(const BookPlan& plan);

// The shortest plan found that still fails, by leaving out openings and steps; `fails` is asked at
// most `times` times.
BookPlan shrink(BookPlan plan, int times, const std::function<bool(const BookPlan&)>& fails);

} // namespace tests
