// Values convert where nothing is lost and are refused where something would be.
#include "host/values/value.h"

namespace host {

namespace {

Value amount(const char* text) { return Amount::parse(text).value(); }

} // namespace

TEST(Value, converts_where_nothing_is_lost) {
    using T = FieldType;
    EXPECT_EQ(converted(Value{std::string("12.50")}, T::Amount), amount("12.5"));
    EXPECT_EQ(converted(Value{std::int64_t{7}}, T::Amount), amount("7"));
    EXPECT_EQ(converted(amount("7"), T::Integer), Value{std::int64_t{7}});
    EXPECT_EQ(converted(Value{std::string("True")}, T::Boolean), Value{true});
    EXPECT_EQ(converted(Value{std::int64_t{0}}, T::Boolean), Value{false});
    EXPECT_EQ(converted(Value{true}, T::Integer), Value{std::int64_t{1}});
    EXPECT_EQ(converted(amount("1234.50"), T::Text), Value{std::string("1234.5")});
    EXPECT_EQ(converted(Value{std::string("2024-3-5")}, T::DateTime),
              (Value{DateTime{*Date::of(2024, 3, 5), 0}}));
}

TEST(Value, is_refused_where_something_would_be_lost) {
    EXPECT_FALSE(converted(amount("7.5"), FieldType::Integer));
    EXPECT_FALSE(converted(Value{std::string("abc")}, FieldType::Amount));
    EXPECT_FALSE(converted(Value{std::string("maybe")}, FieldType::Boolean));
    EXPECT_FALSE(converted(Value{std::string("2024-02-30")}, FieldType::DateTime));
    EXPECT_FALSE(converted(Value{true}, FieldType::DateTime));
}

TEST(Value, an_empty_text_is_null_but_for_text_fields) {
    EXPECT_EQ(converted(Value{std::string(" ")}, FieldType::Amount), Value{});
    EXPECT_EQ(converted(Value{std::string()}, FieldType::Text), Value{std::string()});
    EXPECT_EQ(converted(Value{}, FieldType::Text), Value{});
}

TEST(Value, shows_by_its_format) {
    EXPECT_EQ(formatted(amount("1234567.5"), "#,##0.00"), "1,234,567.50");
    EXPECT_EQ(formatted(amount("-123456"), "#,##0.00"), "-123,456.00");
    EXPECT_EQ(formatted(amount("-123"), "#,##0.00"), "-123.00");
    EXPECT_EQ(formatted(amount("1.005"), "0.00"), "1.01");
    EXPECT_EQ(formatted(amount("1.5"), ""), "1.5");
    EXPECT_EQ(formatted(Value{}, "0.00"), "");
    const Value moment = DateTime{*Date::of(2024, 3, 5), 3'600'000};
    EXPECT_EQ(formatted(moment, "yyyy-mm-dd"), "2024-03-05");
    EXPECT_EQ(formatted(moment, ""), "2024-03-05 01:00:00");
}

TEST(Value, moments_travel_as_milliseconds) {
    for (const char* text : {"2024-03-05 14:05:06", "1969-12-31 23:59:59", "0001-01-01"}) {
        const DateTime moment = DateTime::parse(text).value();
        EXPECT_EQ(from_milliseconds(to_milliseconds(moment)), moment) << text;
    }
}

} // namespace host
