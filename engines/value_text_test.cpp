// Cells as text: scales, signs, ticks and shortest floats.
#include "engines/value_text.h"

#include <gtest/gtest.h>

#include "engines/calendar.h"

namespace engines {
namespace {

TEST(ValueText, a_decimal_shows_its_scale_and_a_leading_zero) {
    EXPECT_EQ(text_of(Value::decimal(1250, 2)), "12.50");
    EXPECT_EQ(text_of(Value::decimal(-5, 2)), "-0.05");
    EXPECT_EQ(text_of(Value::decimal(0, 2)), "0.00");
    EXPECT_EQ(text_of(Value::decimal(7, 0)), "7");
}

TEST(ValueText, thirty_eight_digits_are_exact) {
    Int128 all = 0;
    for (int digit = 0; digit < 38; ++digit) all = all * 10 + 9;
    EXPECT_EQ(text_of(Value::decimal(all, 0)), std::string(38, '9'));
    EXPECT_EQ(text_of(Value::decimal(-all, 38)), "-0." + std::string(38, '9'));
}

TEST(ValueText, a_float_is_shortest_and_whole_numbers_end_in_point_zero) {
    EXPECT_EQ(text_of(Value::real(80)), "80.0");
    EXPECT_EQ(text_of(Value::real(0.1)), "0.1");
    EXPECT_EQ(text_of(Value::real(1e22)), "1e+22");
    EXPECT_EQ(text_of(Value::real(-2.5)), "-2.5");
}

TEST(ValueText, a_tick_is_a_three_hundredth_of_a_second) {
    const std::int64_t day = days_since_1900(2024, 2, 29) * ticks_per_day;
    EXPECT_EQ(text_of(Value::datetime(day)), "2024-02-29 00:00:00.000");
    EXPECT_EQ(text_of(Value::datetime(day + 1)), "2024-02-29 00:00:00.003");
    EXPECT_EQ(text_of(Value::datetime(day + 2)), "2024-02-29 00:00:00.007");
    EXPECT_EQ(text_of(Value::datetime(-1)), "1899-12-31 23:59:59.997");
}

TEST(ValueText, days_are_counted_from_1900) {
    EXPECT_EQ(text_of(Value::date(0)), "1900-01-01");
    EXPECT_EQ(text_of(Value::date(-1)), "1899-12-31");
    EXPECT_EQ(days_in_month(1900, 2), 28);
    EXPECT_EQ(days_in_month(2000, 2), 29);
}

TEST(ValueText, bytes_are_shown_in_hexadecimal) {
    EXPECT_EQ(text_of(Value::binary(std::string_view("\x01\xAF", 2))), "0x01AF");
}

} // namespace
} // namespace engines
