// Conversions between types, with the server's roundings and error numbers.
#include "engines/sqlite/conversion/convert.h"

#include <gtest/gtest.h>

#include <array>

#include "engines/error.h"
#include "engines/value_text.h"

namespace engines {
namespace {

using tsql::Type;
using tsql::TypeKind;

const Type int_type = Type::integer();
const Type money = Type::of(TypeKind::Money);
const Type float_type = Type::of(TypeKind::Float);
const Type bit = Type::of(TypeKind::Bit);
const Type datetime = Type::of(TypeKind::DateTime);
const Type date = Type::of(TypeKind::Date);
const Type words = Type::varchar(30);

// The text of the converted value, or the number of the error.
std::string converted(const Stored& value, const Type& from, const Type& to, int style = 0,
                      Fit fit = Fit::cut) {
    std::string buffer;
    try {
        return text_of(cell_of(convert(value, from, to, style, fit, buffer), to));
    } catch (const Failure& failure) {
        return std::to_string(failure.error().number);
    }
}

struct TextCase {
    const char* text;
    Type to;
    const char* result;
};

TEST(Convert, texts_become_numbers_or_errors) {
    const Type dec = Type::decimal(9, 2);
    const TextCase cases[] = {{"", int_type, "0"},
                              {"  ", int_type, "0"},
                              {"+5", int_type, "5"},
                              {"007", int_type, "7"},
                              {" 42 ", int_type, "42"},
                              {"12.0", int_type, "245"},
                              {"abc", int_type, "245"},
                              {"-", int_type, "245"},
                              {"99999999999", int_type, "248"},
                              {"-2147483648", int_type, "-2147483648"},
                              {"300", Type::of(TypeKind::TinyInt), "244"},
                              {"", dec, "8114"},
                              {"1e3", dec, "8114"},
                              {"1,234.50", dec, "8114"},
                              {"1.005", dec, "1.01"},
                              {".5", dec, "0.50"},
                              {"12345678", dec, "8115"},
                              {"", money, "0.0000"},
                              {"1,234.50", money, "1234.5000"},
                              {"$12.50", money, "12.5000"},
                              {"￥12.5", money, "12.5000"},
                              {"12x", money, "235"},
                              {"", float_type, "0.0"},
                              {"1e3", float_type, "1000.0"},
                              {" 2.5 ", float_type, "2.5"},
                              {"x1", float_type, "8114"},
                              {"0x10", float_type, "8114"},
                              {"true", bit, "1"},
                              {"False", bit, "0"},
                              {"7", bit, "1"},
                              {"", bit, "0"},
                              {"yes", bit, "245"},
                              {"", datetime, "1900-01-01 00:00:00.000"},
                              {"2016-02-30", datetime, "242"},
                              {"abc", datetime, "241"},
                              {"1752-12-31", datetime, "242"},
                              {"2016-02-30", date, "241"},
                              {"1752-12-31", date, "1752-12-31"},
                              {"2016-03-31 23:59:59.999", datetime, "2016-04-01 00:00:00.000"},
                              {"2016-03-05 10:00:00.002", datetime, "2016-03-05 10:00:00.003"},
                              {"6f9619ff-8b86-d011-b42d-00c04fc964ff",
                               Type::of(TypeKind::UniqueIdentifier),
                               "6F9619FF-8B86-D011-B42D-00C04FC964FF"},
                              {"x", Type::of(TypeKind::UniqueIdentifier), "8169"}};
    for (const TextCase& one : cases)
        EXPECT_EQ(converted(Stored::of_text(one.text), words, one.to), one.result)
            << one.text << " to " << one.to.text();
}

TEST(Convert, decimals_are_cut_and_money_is_rounded_into_whole_numbers) {
    EXPECT_EQ(converted(Stored::of(-19), Type::decimal(2, 1), int_type), "-1");
    EXPECT_EQ(converted(Stored::of(15000), money, int_type), "2");
    EXPECT_EQ(converted(Stored::of(-16000), money, int_type), "-2");
    EXPECT_EQ(converted(Stored::of_real(1.5), float_type, int_type), "1");
    EXPECT_EQ(converted(Stored::of_real(1e10), float_type, int_type), "232");
    EXPECT_EQ(converted(Stored::of(300), int_type, Type::of(TypeKind::TinyInt)), "220");
    EXPECT_EQ(converted(Stored::of(5), Type::decimal(2, 1), bit), "1");
}

TEST(Convert, into_a_decimal_the_last_digit_is_rounded_away_from_zero) {
    EXPECT_EQ(converted(Stored::of(-25), Type::decimal(2, 1), Type::decimal(9, 0)), "-3");
    EXPECT_EQ(converted(Stored::of(1005), Type::decimal(4, 3), Type::decimal(9, 2)), "1.01");
    EXPECT_EQ(converted(Stored::of(12345678), Type::decimal(8, 2), Type::decimal(5, 2)), "8115");
    EXPECT_EQ(converted(Stored::of_real(100), float_type, Type::decimal(9, 2)), "100.00");
    EXPECT_EQ(converted(Stored::of(123456), Type::decimal(6, 5), money), "1.2346");
}

TEST(Convert, numbers_become_texts_but_are_never_cut) {
    EXPECT_EQ(converted(Stored::of(123450), Type::decimal(6, 2), words), "1234.50");
    EXPECT_EQ(converted(Stored::of(12345), int_type, Type::varchar(3)), "*");
    EXPECT_EQ(converted(Stored::of(12345), int_type, Type::nvarchar(3)), "8115");
    EXPECT_EQ(converted(Stored::of(12345), Type::decimal(5, 2), Type::varchar(3)), "8115");
    EXPECT_EQ(converted(Stored::of(12345678910), money, words), "1234567.89");
    EXPECT_EQ(converted(Stored::of(12345678910), money, words, 1), "1,234,567.89");
    EXPECT_EQ(converted(Stored::of(-1234560000), money, words, 1), "-123,456.00");
    EXPECT_EQ(converted(Stored::of(12345678910), money, words, 2), "1234567.8910");
    EXPECT_EQ(converted(Stored::of_real(0.1), float_type, words), "0.1");
    EXPECT_EQ(converted(Stored::of_real(1234567), float_type, words), "1.23457e+006");
}

TEST(Convert, texts_are_cut_by_cast_and_refused_by_columns) {
    EXPECT_EQ(converted(Stored::of_text("abcdef"), words, Type::varchar(3)), "abc");
    EXPECT_EQ(converted(Stored::of_text("abcdef"), words, Type::varchar(3), 0, Fit::refuse),
              "8152");
    EXPECT_EQ(converted(Stored::of_text("abc   "), words, Type::varchar(3), 0, Fit::refuse), "abc");
    EXPECT_EQ(converted(Stored::of_text("中文"), words, Type::varchar(2)), "中");
    Type fixed = Type::varchar(5);
    fixed.kind = TypeKind::Char;
    EXPECT_EQ(converted(Stored::of_text("ab"), words, fixed), "ab   ");
}

TEST(Convert, dates_become_texts_in_the_style_asked_for) {
    const Stored noon = Stored::of(Int128(42442) * 86400 * 300 + 43200 * 300);
    EXPECT_EQ(converted(noon, datetime, words, 120), "2016-03-15 12:00:00");
    EXPECT_EQ(converted(noon, datetime, Type::varchar(7), 120), "2016-03");
    EXPECT_EQ(converted(noon, datetime, words), "Mar 15 2016 12:00PM");
    EXPECT_EQ(converted(noon, datetime, words, 999), "281");
    EXPECT_EQ(converted(Stored::of(42442), date, words), "2016-03-15");
    EXPECT_EQ(converted(noon, datetime, date), "2016-03-15");
}

TEST(Convert, a_number_is_days_since_1900) {
    EXPECT_EQ(converted(Stored::of(36524), int_type, datetime), "2000-01-01 00:00:00.000");
    EXPECT_EQ(converted(Stored::of(5), Type::decimal(2, 1), datetime), "1900-01-01 12:00:00.000");
    EXPECT_EQ(converted(Stored::of_real(-0.5), float_type, datetime), "1899-12-31 12:00:00.000");
    EXPECT_EQ(converted(Stored::of(99999999), int_type, datetime), "8115");
}

TEST(Convert, null_stays_null) {
    std::string buffer;
    EXPECT_TRUE(convert(Stored::null(), words, int_type, 0, Fit::cut, buffer).is_null());
}

TEST(Convert, numeric_texts) {
    for (const char* text : {"1.5", "-2", "1e3", "$1", "1,000", " 7 "})
        EXPECT_TRUE(is_numeric(text));
    for (const char* text : {"", "abc", "1.2.3", " ", "--1"}) EXPECT_FALSE(is_numeric(text));
}

} // namespace
} // namespace engines
