// Dates read, written and calculated with.
#include <gtest/gtest.h>

#include "engines/calendar.h"
#include "engines/error.h"
#include "engines/sqlite/dates/date_parts.h"
#include "engines/sqlite/dates/format_datetime.h"
#include "engines/sqlite/dates/parse_datetime.h"

namespace engines {
namespace {

std::int64_t ticks(std::string_view text, int style = 0) {
    const ParsedDateTime parsed = parse_datetime(text, style);
    EXPECT_EQ(parsed.reading, DateReading::read) << text;
    return parsed.days * ticks_per_day + (parsed.nanoseconds / 1000000 * 3 + 5) / 10;
}

std::string shown(std::int64_t at, int style = 121) {
    std::string text;
    EXPECT_TRUE(append_datetime(at, style, true, text));
    return text;
}

TEST(ParseDatetime, the_common_forms_of_one_day_are_the_same_day) {
    for (const char* form : {"20160305", "2016-3-5", "2016/03/05", "2016.03.05", "03/05/2016",
                             "3-5-2016", "Mar 5 2016", "March 5, 2016", "5 Mar 2016", "160305"})
        EXPECT_EQ(shown(ticks(form)), "2016-03-05 00:00:00.000") << form;
    EXPECT_EQ(shown(ticks("05/03/2016", 103)), "2016-03-05 00:00:00.000");
    EXPECT_EQ(shown(ticks("03/05/2016", 101)), "2016-03-05 00:00:00.000");
}

TEST(ParseDatetime, times_with_and_without_halves_of_the_day) {
    EXPECT_EQ(shown(ticks("2016-03-05 14:05")), "2016-03-05 14:05:00.000");
    EXPECT_EQ(shown(ticks("2016-03-05T14:05:06")), "2016-03-05 14:05:06.000");
    EXPECT_EQ(shown(ticks("Mar  5 2016  2:05PM")), "2016-03-05 14:05:00.000");
    EXPECT_EQ(shown(ticks("2016-03-05 12:00 am")), "2016-03-05 00:00:00.000");
    EXPECT_EQ(shown(ticks("12:30")), "1900-01-01 12:30:00.000");
    EXPECT_EQ(shown(ticks("")), "1900-01-01 00:00:00.000");
    EXPECT_EQ(shown(ticks("2016-03-05 10:00:00.5")), "2016-03-05 10:00:00.500");
}

TEST(ParseDatetime, what_is_no_date_differs_from_a_day_that_does_not_exist) {
    for (const char* bad : {"abc", "2016-03", "2016-03-05x", "2016-03-05 1x", "1:2:3:4:5", "-",
                            "2016/03-05", "99999999999"})
        EXPECT_EQ(parse_datetime(bad, 0).reading, DateReading::malformed) << bad;
    for (const char* bad : {"2016-02-30", "2016-13-01", "20160230", "2015-02-29",
                            "2016-03-05 24:00", "2016-03-05 10:60"})
        EXPECT_EQ(parse_datetime(bad, 0).reading, DateReading::out_of_range) << bad;
}

TEST(FormatDatetime, the_styles_of_convert) {
    const std::int64_t at = ticks("2016-03-15 12:30:05.123");
    EXPECT_EQ(shown(at, 0), "Mar 15 2016 12:30PM");
    EXPECT_EQ(shown(ticks("2016-03-05"), 100), "Mar  5 2016 12:00AM");
    EXPECT_EQ(shown(at, 102), "2016.03.15");
    EXPECT_EQ(shown(at, 103), "15/03/2016");
    EXPECT_EQ(shown(at, 108), "12:30:05");
    EXPECT_EQ(shown(at, 111), "2016/03/15");
    EXPECT_EQ(shown(at, 112), "20160315");
    EXPECT_EQ(shown(at, 120), "2016-03-15 12:30:05");
    EXPECT_EQ(shown(at, 121), "2016-03-15 12:30:05.123");
    EXPECT_EQ(shown(at, 126), "2016-03-15T12:30:05.123");
    std::string text;
    EXPECT_FALSE(append_datetime(at, 999, true, text));
}

TEST(DateParts, a_month_too_short_takes_its_last_day) {
    EXPECT_EQ(shown(add_to_datetime(DatePart::month, 1, ticks("2016-03-31")), 23), "2016-04-30");
    EXPECT_EQ(shown(add_to_datetime(DatePart::year, 1, ticks("2016-02-29")), 23), "2017-02-28");
    EXPECT_EQ(shown(add_to_datetime(DatePart::month, -1, ticks("2016-01-01")), 23), "2015-12-01");
    EXPECT_EQ(shown(add_to_datetime(DatePart::hour, 25, ticks("2016-12-31"))),
              "2017-01-01 01:00:00.000");
    EXPECT_THROW(add_to_datetime(DatePart::year, 8000, ticks("2016-01-01")), Failure);
    EXPECT_THROW(add_to_datetime(DatePart::day, 1LL << 39, ticks("2016-01-01")), Failure);
}

TEST(DateParts, a_difference_counts_boundaries) {
    EXPECT_EQ(difference(DatePart::day, ticks("2016-03-01 23:00"), ticks("2016-03-02 01:00")), 1);
    EXPECT_EQ(difference(DatePart::month, ticks("2016-01-31"), ticks("2016-02-01")), 1);
    EXPECT_EQ(difference(DatePart::year, ticks("2015-12-31"), ticks("2016-01-01")), 1);
    EXPECT_EQ(difference(DatePart::day, ticks("2016-03-10"), ticks("2016-03-05")), -5);
    // 2016-03-05 was a Saturday.
    EXPECT_EQ(difference(DatePart::week, ticks("2016-03-05"), ticks("2016-03-06")), 1);
    EXPECT_THROW(difference(DatePart::second, ticks("1800-01-01"), ticks("2016-01-01")), Failure);
}

TEST(DateParts, parts_of_a_day) {
    const std::int64_t at = ticks("2016-03-05 12:30:05");
    EXPECT_EQ(part_of(DatePart::weekday, at), 7);
    EXPECT_EQ(part_of(DatePart::dayofyear, at), 31 + 29 + 5);
    EXPECT_EQ(part_of(DatePart::week, at), 10);
    EXPECT_EQ(part_of(DatePart::iso_week, at), 9);
    EXPECT_EQ(part_of(DatePart::quarter, at), 1);
    EXPECT_EQ(part_of(DatePart::hour, at), 12);
    EXPECT_EQ(end_of_month(days_since_1900(2016, 2, 1), 0), days_since_1900(2016, 2, 29));
}

} // namespace
} // namespace engines
