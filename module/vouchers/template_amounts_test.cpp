// Templates brought to another amount: to the cent, and still balanced.
#include "module/vouchers/template_amounts.h"

#include <gtest/gtest.h>

namespace module {
namespace {

Amount yuan(const char* text) {
    return *Amount::parse(text);
}

VoucherLine debit(const char* amount) {
    return {"摘要", "1001", yuan(amount), {}};
}

VoucherLine credit(const char* amount) {
    return {"摘要", "5101", {}, yuan(amount)};
}

Amount sum_of(const std::vector<VoucherLine>& lines, Amount VoucherLine::*side) {
    Amount sum;
    for (const VoucherLine& line : lines) sum += line.*side;
    return sum;
}

TEST(TemplateAmounts, the_larger_side_becomes_the_amount_and_the_lines_keep_their_share) {
    const auto lines = scaled_to({debit("117"), credit("100"), credit("17")}, yuan("234"));
    EXPECT_EQ(lines[0].debit, yuan("234"));
    EXPECT_EQ(lines[1].credit, yuan("200"));
    EXPECT_EQ(lines[2].credit, yuan("34"));
    EXPECT_TRUE(lines[0].credit.is_zero());
    EXPECT_TRUE(lines[1].debit.is_zero());
}

TEST(TemplateAmounts, what_rounding_leaves_over_goes_to_the_largest_line_of_the_side) {
    // 100 : 200 : 300 of 0.05 are 0.0083, 0.0167 and 0.0250: 0.01, 0.02 and 0.03 are 0.06.
    const auto lines =
        scaled_to({debit("100"), debit("200"), debit("300"), credit("600")}, yuan("0.05"));
    EXPECT_EQ(lines[0].debit, yuan("0.01"));
    EXPECT_EQ(lines[1].debit, yuan("0.02"));
    EXPECT_EQ(lines[2].debit, yuan("0.02"));
    EXPECT_EQ(lines[3].credit, yuan("0.05"));
}

TEST(TemplateAmounts, a_template_that_balances_gives_a_voucher_that_balances) {
    const std::vector<VoucherLine> thirds = {debit("33.33"), debit("33.33"), debit("33.34"),
                                             credit("85.47"), credit("14.53")};
    for (std::int64_t cents = 1; cents < 5000; cents += 7) {
        const Amount wanted = Amount::from_cents(cents);
        const auto lines = scaled_to(thirds, wanted);
        EXPECT_EQ(sum_of(lines, &VoucherLine::debit), wanted);
        EXPECT_EQ(sum_of(lines, &VoucherLine::credit), wanted);
        for (const VoucherLine& line : lines) EXPECT_EQ(line.debit, line.debit.rounded(2));
    }
}

TEST(TemplateAmounts, a_template_that_does_not_balance_keeps_its_proportion) {
    const auto lines = scaled_to({debit("100"), credit("50")}, yuan("10"));
    EXPECT_EQ(lines[0].debit, yuan("10"));
    EXPECT_EQ(lines[1].credit, yuan("5"));
    const auto other = scaled_to({debit("50"), credit("100")}, yuan("10"));
    EXPECT_EQ(other[0].debit, yuan("5"));
    EXPECT_EQ(other[1].credit, yuan("10"));
}

TEST(TemplateAmounts, red_lines_stay_red) {
    const auto lines = scaled_to({debit("-100"), credit("-100")}, yuan("-250"));
    EXPECT_EQ(lines[0].debit, yuan("-250"));
    EXPECT_EQ(lines[1].credit, yuan("-250"));
    EXPECT_EQ(larger_side({debit("120"), debit("-20"), credit("100")}), yuan("100"));
}

TEST(TemplateAmounts, a_line_with_both_sides_keeps_both) {
    VoucherLine both = debit("30");
    both.credit = yuan("10");
    const auto lines = scaled_to({both, credit("20")}, yuan("60"));
    EXPECT_EQ(lines[0].debit, yuan("60"));
    EXPECT_EQ(lines[0].credit, yuan("20"));
    EXPECT_EQ(lines[1].credit, yuan("40"));
}

} // namespace
} // namespace module
