// Periods follow one another through the years.
#include "host/values/period.h"

namespace host {

TEST(Period, the_period_before_a_january_is_december_of_the_year_before) {
    EXPECT_EQ(Period::parse("2024-01")->previous().to_text(), "2023-12");
    EXPECT_EQ(Period::parse("2023-12")->next().to_text(), "2024-01");
    EXPECT_EQ(Period::parse("2024-03")->previous().to_text(), "2024-02");
}

TEST(Period, orders_as_its_text_does) {
    EXPECT_LT(*Period::parse("2023-12"), *Period::parse("2024-00"));
    EXPECT_LT(*Period::parse("2024-00"), *Period::parse("2024-01"));
    EXPECT_LT(*Period::parse("2024-09"), *Period::parse("2024-10"));
}

TEST(Period, contains_its_days_and_no_others) {
    const Period february = *Period::parse("2024-02");
    EXPECT_TRUE(february.contains(*Date::of(2024, 2, 1)));
    EXPECT_TRUE(february.contains(*Date::of(2024, 2, 29)));
    EXPECT_FALSE(february.contains(*Date::of(2024, 3, 1)));
    EXPECT_FALSE(Period::parse("2024-00")->contains(*Date::of(2024, 1, 1)));
}

TEST(Period, what_is_no_period_is_refused) {
    for (const char* text : {"", "2024-13", "2024", "2024-1", "2024/01", "abcd-01", "0000-01"})
        EXPECT_FALSE(Period::parse(text)) << text;
}

} // namespace host
