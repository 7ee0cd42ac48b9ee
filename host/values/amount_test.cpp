// Amounts are exact, and rounded as a bookkeeper rounds.
#include "host/values/amount.h"

#include <random>
#include <stdexcept>

namespace host {

namespace {

Amount amount(const char* text) { return Amount::parse(text).value(); }

} // namespace

TEST(Amount, what_a_person_types_is_read) {
    // typed          units (ten-thousandths)
    const std::pair<const char*, std::int64_t> table[] = {
        {"0", 0},           {"1234.50", 12345000},  {" 12 ", 120000},    {"-0.07", -700},
        {"+3", 30000},      {"1,234,567.8", 12345678000}, {".5", 5000},  {"5.", 50000},
        {"0.00005", 1},     {"0.00004999", 0},      {"-0.00005", -1},    {"1.23456", 12346},
        {"922337203685477.5807", INT64_MAX},
    };
    for (const auto& [typed, units] : table) {
        const auto read = Amount::parse(typed);
        ASSERT_TRUE(read) << typed;
        EXPECT_EQ(read->units(), units) << typed;
    }
}

TEST(Amount, what_is_no_number_is_not_read) {
    for (const char* typed : {"", " ", "-", ".", "1.2.3", "12a", "1e3", "--1", ",5", "1 2", "￥5",
                              "922337203685477.58075", "99999999999999999999"})
        EXPECT_FALSE(Amount::parse(typed)) << typed;
}

TEST(Amount, halves_are_rounded_away_from_zero) {
    EXPECT_EQ(amount("0.125").rounded(2), amount("0.13"));
    EXPECT_EQ(amount("-0.125").rounded(2), amount("-0.13"));
    EXPECT_EQ(amount("0.1249").rounded(2), amount("0.12"));
    EXPECT_EQ(amount("2.5").rounded(0), amount("3"));
    EXPECT_EQ(amount("-2.5").to_text(0), "-3");
    EXPECT_EQ(amount("0.9999").to_text(2), "1.00");
    EXPECT_EQ(amount("-0.004").to_text(2), "0.00");
}

TEST(Amount, is_written_with_the_decimals_asked_for) {
    EXPECT_EQ(amount("1234.5").to_text(), "1234.50");
    EXPECT_EQ(amount("-0.07").to_text(), "-0.07");
    EXPECT_EQ(amount("7").to_text(4), "7.0000");
    EXPECT_EQ(amount("1234.50").to_plain_text(), "1234.5");
    EXPECT_EQ(amount("0").to_plain_text(), "0");
    EXPECT_EQ(amount("100").to_plain_text(), "100");
}

TEST(Amount, sums_equal_the_sums_of_cents) {
    std::mt19937 chance(7);
    std::uniform_int_distribution<std::int64_t> cents(-1'000'000'000, 1'000'000'000);
    Amount sum;
    std::int64_t expected = 0;
    for (int i = 0; i < 10'000; ++i) {
        const std::int64_t one = cents(chance);
        sum += Amount::from_cents(one);
        expected += one;
    }
    EXPECT_EQ(sum, Amount::from_cents(expected));
}

TEST(Amount, what_is_too_large_throws_instead_of_bending) {
    const Amount most = Amount::from_units(INT64_MAX);
    EXPECT_THROW(most + Amount::from_units(1), std::overflow_error);
    EXPECT_THROW(Amount::from_units(INT64_MIN) - Amount::from_units(1), std::overflow_error);
    EXPECT_THROW(-Amount::from_units(INT64_MIN), std::overflow_error);
    EXPECT_THROW(Amount::from_cents(INT64_MAX), std::overflow_error);
    EXPECT_THROW(most.times(2, 1), std::overflow_error);
    EXPECT_THROW(most.times(1, 0), std::overflow_error);
}

TEST(Amount, a_share_is_rounded_once) {
    EXPECT_EQ(amount("100").times(1, 3), amount("33.33"));
    EXPECT_EQ(amount("100").times(2, 3), amount("66.67"));
    EXPECT_EQ(amount("-100").times(2, 3), amount("-66.67"));
    EXPECT_EQ(amount("100").times(13, 113), amount("11.50")); // tax inside a price: 11.504…
    EXPECT_EQ(amount("1").times(1, 8, 4), amount("0.125"));
}

} // namespace host
