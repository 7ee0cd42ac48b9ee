// Spreading money over open items.
#include "module/settlement/spreading.h"

#include <gtest/gtest.h>

namespace module {
namespace {

Amount amount(const char* text) {
    return *Amount::parse(text);
}

// "30.00 -10.00 60.00"
std::string shares(const char* money, const std::vector<std::array<const char*, 3>>& items) {
    std::vector<OpenItem> open;
    for (const auto& [total, settled, returned] : items)
        open.push_back({amount(total), amount(settled), amount(returned)});
    std::string text;
    for (const Amount share : spread(amount(money), open))
        text += (text.empty() ? "" : " ") + share.to_plain_text();
    return text;
}

TEST(Spreading, the_oldest_item_is_paid_first_and_the_last_one_takes_the_rest) {
    EXPECT_EQ(shares("250", {{"100", "0", "0"}, {"100", "0", "0"}, {"100", "0", "0"}}),
              "100 100 50");
}

TEST(Spreading, what_was_settled_or_credited_before_is_not_open_any_more) {
    EXPECT_EQ(shares("250", {{"200", "80", "20"}, {"300", "0", "150"}}), "100 150");
}

TEST(Spreading, an_item_paid_to_the_cent_leaves_nothing_for_the_next) {
    EXPECT_EQ(shares("100", {{"100", "0", "0"}, {"5", "0", "0"}}), "100 0");
}

TEST(Spreading, no_money_gives_nothing_to_anyone) {
    EXPECT_EQ(shares("0", {{"100", "0", "0"}, {"-10", "0", "0"}}), "0 0");
    EXPECT_EQ(shares("5", {}), "");
}

TEST(Spreading, money_beyond_all_items_is_left_over) {
    EXPECT_EQ(shares("500", {{"100", "0", "0"}, {"50", "0", "0"}}), "100 50");
}

TEST(Spreading, a_return_takes_its_whole_amount_and_leaves_more_for_those_after_it) {
    EXPECT_EQ(shares("80", {{"30", "0", "0"}, {"-10", "0", "0"}, {"90", "20", "0"}}), "30 -10 60");
}

TEST(Spreading, a_return_after_the_money_is_used_up_gets_nothing) {
    EXPECT_EQ(shares("30", {{"30", "0", "0"}, {"-10", "0", "0"}, {"90", "0", "0"}}), "30 0 0");
}

TEST(Spreading, a_return_partly_written_off_takes_what_is_left_of_it) {
    EXPECT_EQ(shares("5", {{"-40", "-30", "0"}, {"100", "0", "0"}}), "-10 15");
}

TEST(Spreading, shares_are_exact_to_the_ten_thousandth) {
    EXPECT_EQ(shares("0.3", {{"0.1", "0", "0"}, {"0.1001", "0", "0"}, {"1", "0", "0"}}),
              "0.1 0.1001 0.0999");
}

// A refund typed with a sign by mistake goes to the first item; the checks then refuse it.
TEST(Spreading, negative_money_goes_to_the_first_item) {
    EXPECT_EQ(shares("-5", {{"100", "0", "0"}, {"50", "0", "0"}}), "-5 0");
}

} // namespace
} // namespace module
