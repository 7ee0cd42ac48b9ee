// Random books, kept by the program and by plain addition, hold the same balances to the cent.
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

#include "tests/scenarios/book_comparison.h"
#include "tests/scenarios/book_run.h"

namespace tests {

namespace {

int number_from(const char* name, int otherwise) {
    const char* text = std::getenv(name);
    return text == nullptr ? otherwise : std::atoi(text);
}

constexpr int usual_books = 25;
constexpr int times_to_shrink = 300;

} // namespace

// ZF_RANDOM_BOOKS says how many books are kept, ZF_RANDOM_SEED where their seeds begin.
TEST(RandomBooks, hold_in_every_period_and_account_what_plain_addition_gives) {
    const auto first = static_cast<std::uint32_t>(number_from("ZF_RANDOM_SEED", 1));
    const auto count = static_cast<std::uint32_t>(number_from("ZF_RANDOM_BOOKS", usual_books));
    BookVerdict sum;
    std::size_t audited = 0;
    for (std::uint32_t seed = first; seed < first + count; ++seed) {
        const BookPlan plan = plan_books(seed);
        const BookVerdict verdict = keep_books(plan);
        sum.steps += verdict.steps;
        sum.vouchers += verdict.vouchers;
        sum.figures += verdict.figures;
        if (verdict.audited) ++audited;
        if (verdict.difference.empty()) continue;
        const BookPlan shortest = shrink(plan, times_to_shrink, [](const BookPlan& shorter) {
            return !keep_books(shorter).difference.empty();
        });
        FAIL() << verdict.difference << "\nafter " << verdict.steps << " steps of seed " << seed
               << ". The shortest plan found:\n"
               << text_of(shortest) << "\nends with: " << keep_books(shortest).difference;
    }
    std::cout << "seeds " << first << " to " << first + count - 1 << ": " << sum.steps
              << " steps, " << sum.vouchers << " vouchers typed, " << sum.figures
              << " amounts compared, " << audited << " books audited\n";
    EXPECT_GT(sum.figures, 0U);
}

// ---- the test itself

TEST(RandomBooks, a_voucher_the_books_do_not_hold_is_found) {
    Books books(small_books(1));
    NaiveLedger ledger(starting_chart());
    EXPECT_NO_THROW(compare_books(books, ledger));
    ledger.vouchers().push_back({.key = "2024-03记001", .period = "2024-03", .word = "记"});
    EXPECT_THROW(compare_books(books, ledger), Difference);
}

TEST(RandomBooks, a_balance_that_is_a_cent_off_is_found) {
    Books books(small_books(1));
    books.execute("INSERT INTO D6602 (QJ,KM_ID,INX,J) VALUES ('2024-03','1001',1,'12.34')");
    NaiveLedger ledger(starting_chart());
    ledger.set_up("2024-03-02", {{"1001", {.balance = 1233}}});
    EXPECT_THROW(compare_books(books, ledger), Difference);
}

TEST(RandomBooks, a_plan_that_fails_is_shortened_to_the_steps_that_matter) {
    const auto fails = [](const BookPlan& plan) {
        bool carried = false;
        for (const Step& step : plan.steps) {
            if (step.act == Act::CarryForward) carried = true;
            if (step.act == Act::Close && carried) return true;
        }
        return false;
    };
    BookPlan plan = plan_books(3);
    plan.steps.insert(plan.steps.begin() + 2, {Act::CarryForward, 1});
    plan.steps.push_back({Act::Close, 1});
    const BookPlan shortest = shrink(plan, 1000, fails);
    ASSERT_EQ(shortest.steps.size(), 2U) << text_of(shortest);
    EXPECT_EQ(shortest.steps[0].act, Act::CarryForward);
    EXPECT_EQ(shortest.steps[1].act, Act::Close);
    EXPECT_TRUE(shortest.openings.empty());
}

} // namespace tests
