// Days are the calendar's days, however they are typed.
#include "host/values/date.h"

namespace host {

TEST(Date, the_usual_ways_of_writing_a_day_are_read) {
    const Date day = Date::of(2024, 3, 5).value();
    for (const char* text : {"2024-03-05", "2024-3-5", "2024/3/5", "2024.03.05", "20240305",
                             " 2024-03-05", "2024-03-05 14:00:00"})
        EXPECT_EQ(Date::parse(text), day) << text;
}

TEST(Date, what_is_no_day_is_refused) {
    for (const char* text : {"", "2024", "2024-13-01", "2023-02-29", "2024-00-10", "24-03-05",
                             "2024-03-0", "abc", "2024-3-123", "0000-01-01"})
        EXPECT_FALSE(Date::parse(text)) << text;
    EXPECT_TRUE(Date::parse("2024-02-29"));
}

TEST(Date, a_month_later_is_the_same_day_or_the_last_of_a_shorter_month) {
    EXPECT_EQ(Date::of(2024, 1, 31)->plus_months(1), Date::of(2024, 2, 29));
    EXPECT_EQ(Date::of(2023, 1, 31)->plus_months(1), Date::of(2023, 2, 28));
    EXPECT_EQ(Date::of(2024, 1, 15)->plus_months(-1), Date::of(2023, 12, 15));
    EXPECT_EQ(Date::of(2024, 5, 17)->last_of_month(), Date::of(2024, 5, 31));
}

TEST(Date, days_count_on_over_years) {
    EXPECT_EQ(*Date::of(2024, 3, 1) - *Date::of(2024, 2, 1), 29);
    EXPECT_EQ(Date::of(2023, 12, 31)->plus_days(1), Date::of(2024, 1, 1));
    EXPECT_EQ(Date::of(1970, 1, 1)->days(), 0);
    EXPECT_EQ(Date::of(9999, 12, 31)->to_text(), "9999-12-31");
}

TEST(DateTime, midnight_shows_no_time) {
    EXPECT_EQ(DateTime::parse("2024-03-05")->to_text(), "2024-03-05");
    EXPECT_EQ(DateTime::parse("2024-03-05 00:00:00.000")->to_text(), "2024-03-05");
    EXPECT_EQ(DateTime::parse("2024-03-05 14:05:06")->to_text(), "2024-03-05 14:05:06");
    EXPECT_EQ(DateTime::parse("2024-03-05T14:05:06.5")->milliseconds,
              ((14 * 60 + 5) * 60 + 6) * 1000 + 500);
}

TEST(DateTime, what_is_no_moment_is_refused) {
    for (const char* text : {"2024-03-05 25:00:00", "2024-03-05 12:61", "2024-03-05 12:00:00x",
                             "2024-03-05x", "12:00"})
        EXPECT_FALSE(DateTime::parse(text)) << text;
}

} // namespace host
