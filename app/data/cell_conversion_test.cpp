// Cells of an engine as the host's values.
#include "app/data/cell_conversion.h"

#include <gtest/gtest.h>

#include "host/values/errors.h"

namespace app {
namespace {

using engines::Value;

std::int64_t integer_of(const Value& value) {
    std::string storage;
    return view_of(value, storage).integer;
}

} // namespace

TEST(CellConversion, decimals_become_ten_thousandths_rounded_half_away_from_zero) {
    // unscaled  scale  ten-thousandths
    struct {
        long unscaled;
        int scale;
        std::int64_t expected;
    } const rows[] = {
        {1250, 2, 125000},   // 12.50
        {-5, 2, -500},       // -0.05
        {7, 0, 70000},       // 7
        {123455, 5, 12346},  // 1.23455
        {-123455, 5, -12346},
        {123454, 5, 12345},
        {49999, 9, 0},
        {50000, 9, 1},       // 0.000050000
    };
    for (const auto& row : rows)
        EXPECT_EQ(integer_of(Value::decimal(row.unscaled, row.scale)), row.expected)
            << row.unscaled << " scale " << row.scale;
}

TEST(CellConversion, an_amount_finer_than_ten_thousandths_is_told_in_full_besides) {
    const auto text_of = [](const Value& value) {
        std::string storage;
        return std::string(view_of(value, storage).text);
    };
    EXPECT_EQ(text_of(Value::decimal(333333, 6)), "0.333333");
    EXPECT_EQ(text_of(Value::decimal(-123456700, 8)), "-1.234567");
    EXPECT_EQ(text_of(Value::decimal(12345600, 7)), "1.23456");
    EXPECT_EQ(text_of(Value::decimal(1234500, 6)), ""); // an amount holds it
    EXPECT_EQ(text_of(Value::real(1.0 / 3)), "0.333333333333333");
    EXPECT_EQ(text_of(Value::real(0.1 + 0.2)), "0.3");
    EXPECT_EQ(text_of(Value::real(80)), "80");
    EXPECT_EQ(text_of(Value::real(0)), "0");
}

TEST(CellConversion, a_number_beyond_an_amount_is_refused_and_not_bent) {
    engines::Int128 big = 1;
    for (int i = 0; i < 17; ++i) big *= 10;
    EXPECT_THROW(integer_of(Value::decimal(big, 0)), host::DataError);
}

TEST(CellConversion, moments_count_milliseconds_since_1970) {
    const std::int64_t day_1970 = 25567, ticks_a_day = 25'920'000;
    EXPECT_EQ(integer_of(Value::date(day_1970 + 1)), 86'400'000);
    EXPECT_EQ(integer_of(Value::datetime(day_1970 * ticks_a_day)), 0);
    // The server's milliseconds: ticks of 1/300 second are written .000, .003, .007.
    EXPECT_EQ(integer_of(Value::datetime(day_1970 * ticks_a_day + 1)), 3);
    EXPECT_EQ(integer_of(Value::datetime(day_1970 * ticks_a_day + 2)), 7);
    EXPECT_EQ(integer_of(Value::datetime(day_1970 * ticks_a_day + 300)), 1000);
    EXPECT_EQ(integer_of(Value::datetime(0)), -day_1970 * 86'400'000);
}

TEST(CellConversion, null_stays_null_and_text_stays_text) {
    std::string storage;
    EXPECT_TRUE(view_of(Value::null(), storage).null);
    EXPECT_EQ(view_of(Value::text("现金"), storage).text, "现金");
}

TEST(CellConversion, types_the_host_lacks_are_shown_as_text) {
    engines::Column column;
    column.kind = engines::ValueKind::guid;
    EXPECT_EQ(description_of(column).type, host::FieldType::Text);
    column.kind = engines::ValueKind::bit;
    EXPECT_EQ(description_of(column).type, host::FieldType::Boolean);
    column.kind = engines::ValueKind::decimal;
    column.scale = 2;
    EXPECT_EQ(description_of(column).decimals, 2);
}

} // namespace app
