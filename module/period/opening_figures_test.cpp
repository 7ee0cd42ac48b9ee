// What an account began the year with, and when the books balance.
#include "module/period/opening_figures.h"

#include <gtest/gtest.h>

namespace module {
namespace {

Amount yuan(std::int64_t whole) { return Amount::from_whole(whole); }

TEST(OpeningFigures, the_year_began_with_the_balance_less_what_moved_since) {
    struct Attempt {
        const char* side;
        std::int64_t debits, credits, balance, year_opening;
    };
    const Attempt attempts[] = {
        {"借", 30, 10, 100, 80}, // debits made it larger, credits smaller
        {"贷", 30, 10, 100, 120},
        {"借", 0, 0, 100, 100}, // a January start: nothing moved
        {"贷", 0, 0, -5, -5},
        {"借", 200, 50, 100, -50}, // overdrawn at the beginning
        {"平", 30, 10, 100, 120},  // any direction but 借 counts as credit
    };
    for (const Attempt& attempt : attempts) {
        const OpeningFigures figures{attempt.side, yuan(attempt.debits), yuan(attempt.credits),
                                     yuan(attempt.balance)};
        EXPECT_EQ(figures.year_opening(), yuan(attempt.year_opening)) << attempt.side;
    }
}

TEST(OpeningFigures, one_cent_on_one_side_is_told) {
    BothSides sides;
    EXPECT_EQ(sides.verdict(), "平衡");
    sides.add("借", yuan(100));
    sides.add("贷", yuan(100) - Amount::from_cents(1));
    EXPECT_EQ(sides.verdict(), "借方多 0.01");
    sides.add("贷", Amount::from_cents(3));
    EXPECT_EQ(sides.verdict(), "贷方多 0.02");
    sides.add("", yuan(7)); // no direction, no side
    sides.add("贷", Amount::from_cents(-2));
    EXPECT_TRUE(sides.balanced());
}

} // namespace
} // namespace module
