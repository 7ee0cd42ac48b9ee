// What a red voucher says: the amounts, the day, the name of the original.
#include "module/vouchers/red_voucher.h"

#include <gtest/gtest.h>

#include "host/values/text.h"

namespace module {
namespace {

const OriginalVoucher original{"2024-03记008", "2024-03", "记", "8"};

TEST(RedVoucher, amounts_are_negative_on_their_own_side) {
    const auto red = red_lines({{"收货款", "1001", *Amount::parse("100.5"), {}},
                                {"收货款", "1131", {}, *Amount::parse("100.5")},
                                {"更正", "5101", {}, *Amount::parse("-3")}},
                               red_mark(original));
    ASSERT_EQ(red.size(), 3u);
    EXPECT_EQ(red[0].debit, *Amount::parse("-100.5"));
    EXPECT_TRUE(red[0].credit.is_zero());
    EXPECT_EQ(red[1].credit, *Amount::parse("-100.5"));
    EXPECT_TRUE(red[1].debit.is_zero());
    EXPECT_EQ(red[2].credit, *Amount::parse("3")) << "red reversed is black";
    EXPECT_EQ(red[0].summary, "红字冲销2024-03记-8 收货款");
    EXPECT_EQ(red[0].account, "1001");
}

TEST(RedVoucher, a_summary_that_grows_too_long_loses_its_end) {
    std::string hundred;
    for (int i = 0; i < 100; ++i) hundred += "帐";
    const auto red = red_lines({{hundred, "1001", *Amount::parse("1"), {}}}, red_mark(original));
    EXPECT_EQ(character_count(red[0].summary), 100u);
    EXPECT_TRUE(red[0].summary.starts_with("红字冲销2024-03记-8 帐"));
}

TEST(RedVoucher, is_dated_today_within_the_open_period_and_else_on_its_last_day) {
    const Period open = Period::of(2024, 2);
    const std::pair<const char*, const char*> days[] = {// today, its date
                                                        {"2024-02-01", "2024-02-01"},
                                                        {"2024-02-29", "2024-02-29"},
                                                        {"2024-03-05", "2024-02-29"},
                                                        {"2024-01-31", "2024-02-29"}};
    for (const auto& [today, date] : days) {
        EXPECT_EQ(red_date(open, *Date::parse(today)).to_text(), date) << today;
    }
}

} // namespace
} // namespace module
