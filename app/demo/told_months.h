// The story's vouchers, month by month, every amount worked out.
#pragma once

#include <vector>

#include "app/demo/running_books.h"
#include "app/demo/story.h"

namespace app {

struct ToldMonth {
    host::Period period;
    std::vector<ToldVoucher> vouchers;      // in the order of their numbers
    bool closes = false;                    // audited, posted, carried forward and closed
    std::vector<ToldVoucher> after_carrying; // of a December: entered after the carry-forward
    // Of the month that stays open: so many, from the first, are posted and audited.
    std::size_t posted = 0, audited = 0;
    RunningBooks after; // what stands when all of it is booked
};

// The whole story. The same story gives the same vouchers. A voucher without amounts (a loss of
// nothing, a tax on nothing) is left out. Throws FormulaError, std::runtime_error.
std::vector<ToldMonth> told_months(const Story& story);

// Places, from 0, of the vouchers in the month that are kept as templates.
std::vector<std::size_t> template_places(const Story& story, const ToldMonth& month);

} // namespace app
