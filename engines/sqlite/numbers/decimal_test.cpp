// Exact decimal arithmetic: rounding, cutting, limits, storage order.
#include "engines/sqlite/numbers/decimal.h"

#include <gtest/gtest.h>

#include <random>

#include "engines/error.h"
#include "engines/value_text.h"

namespace engines {
namespace {

std::string text(Int128 unscaled, int scale) {
    return text_of(Value::decimal(unscaled, scale));
}

Int128 number(std::string_view digits, int scale = 0) {
    return parse_decimal(digits, scale).value().unscaled;
}

int error_of(const auto& action) {
    try {
        action();
    } catch (const Failure& failure) {
        return failure.error().number;
    }
    return 0;
}

TEST(Decimal, fewer_decimals_round_half_away_from_zero_or_are_cut) {
    EXPECT_EQ(text(rescale(1005, 3, 2), 2), "1.01");
    EXPECT_EQ(text(rescale(-1005, 3, 2), 2), "-1.01");
    EXPECT_EQ(text(rescale(1004, 3, 2), 2), "1.00");
    EXPECT_EQ(text(rescale(-19, 1, 0, Rounding::cut), 0), "-1");
}

TEST(Decimal, a_quotient_is_cut_at_its_scale) {
    EXPECT_EQ(text(divide(1000, 2, 300, 2, 38, 20), 20), "3.33333333333333333333");
    EXPECT_EQ(text(divide(200, 2, 3, 0, 20, 6), 6), "0.666666");
    EXPECT_EQ(error_of([] { divide(1, 0, 0, 0, 38, 6); }), 8134);
}

TEST(Decimal, a_quotient_whose_dividend_is_wider_than_128_bits_is_exact) {
    // 10^33 / 7 with 20 decimals would need 10^53 on the way; only the quotient must fit.
    const Int128 large = power_of_ten(17) * 3;
    EXPECT_EQ(text(divide(large * power_of_ten(15), 15, 7, 0, 38, 20), 20),
              "42857142857142857.14285714285714285714");
}

TEST(Decimal, a_product_beyond_64_bits_is_exact) {
    const Int128 a = number("1234567890123.45", 2);
    EXPECT_EQ(text(multiply(a, 2, a, 2, 37, 4), 4), "1524157875323866912056239.9025");
}

TEST(Decimal, a_product_beyond_128_bits_is_rounded_to_its_scale) {
    const Int128 a = number("12345678901234567890.12345678901234567", 17);
    // The square is 152415787532388367526596557677488187585.5…, too large for 38 digits.
    EXPECT_EQ(error_of([&] { multiply(a, 17, a, 17, 38, 0); }), 8115);
    const Int128 b = number("1.2345678901234567890123456789", 28);
    EXPECT_EQ(text(multiply(b, 28, b, 28, 38, 6), 6), "1.524158");
}

TEST(Decimal, more_than_thirty_eight_digits_are_an_overflow) {
    EXPECT_EQ(error_of([] { checked(1000, 3); }), 8115);
    EXPECT_EQ(error_of([] { rescale(power_of_ten(37), 0, 2); }), 8115);
    EXPECT_TRUE(parse_decimal(std::string(39, '9'), 0)->overflow);
    EXPECT_FALSE(parse_decimal(std::string(38, '9'), 0)->overflow);
}

TEST(Decimal, text_is_digits_with_one_point_and_blanks_around) {
    EXPECT_EQ(text(number("            1234.50", 2), 2), "1234.50");
    EXPECT_EQ(text(number("-0.00", 2), 2), "0.00");
    EXPECT_EQ(text(number(".5", 2), 2), "0.50");
    EXPECT_EQ(text(number("5.", 2), 2), "5.00");
    EXPECT_EQ(text(number("1.005", 2), 2), "1.01");
    EXPECT_EQ(text(number("1.00499999999999999999999999999999999999999", 2), 2), "1.00");
    for (const char* bad : {"", " ", "12x", "1,234", "1e3", "--1", "1.2.3", ".", "-"})
        EXPECT_FALSE(parse_decimal(bad, 2)) << bad;
}

TEST(Decimal, a_float_becomes_the_decimal_it_is_written_as) {
    EXPECT_EQ(text(from_double(0.1, 2), 2), "0.10");
    EXPECT_EQ(text(from_double(1e2, 2), 2), "100.00");
    EXPECT_EQ(text(from_double(-2.5, 0), 0), "-3");
    EXPECT_EQ(text(from_double(1e30, 0), 0), "1" + std::string(30, '0'));
    EXPECT_EQ(error_of([] { from_double(1e39, 0); }), 8115);
    EXPECT_DOUBLE_EQ(to_double(12345, 2), 123.45);
}

TEST(Decimal, the_bytes_of_wide_values_are_in_the_order_of_the_numbers) {
    std::mt19937_64 random(1);
    Int128 last = -power_of_ten(38) + 1;
    std::vector<Int128> values{last, -power_of_ten(20), -1, 0, 1, power_of_ten(20)};
    for (std::size_t i = 0; i + 1 < values.size(); ++i) {
        const WideBytes a = to_wide(values[i]);
        const WideBytes b = to_wide(values[i + 1]);
        EXPECT_LT(std::string_view(a.data(), 16), std::string_view(b.data(), 16));
        EXPECT_EQ(from_wide(std::string_view(a.data(), 16)), values[i]);
    }
    EXPECT_FALSE(from_wide("123"));
}

TEST(Decimal, comparison_does_not_depend_on_the_scale) {
    EXPECT_EQ(compare(10, 1, 100, 2), 0);
    EXPECT_LT(compare(10, 1, 101, 2), 0);
    EXPECT_GT(compare(power_of_ten(37), 0, power_of_ten(37), 37), 0);
}

// Division undoes multiplication for every pair of numbers that fits.
TEST(Decimal, a_product_divided_by_a_factor_gives_the_other_factor) {
    std::mt19937_64 random(20240229);
    for (int i = 0; i < 2000; ++i) {
        const Int128 a = static_cast<Int128>(random() >> 2) - (Int128(1) << 60);
        const Int128 b = static_cast<Int128>(random() % 1000000000) + 1;
        const Int128 product = multiply(a, 4, b, 2, 38, 6);
        EXPECT_EQ(divide(product, 6, b, 2, 38, 4), a);
    }
}

} // namespace
} // namespace engines
