// Precision and scale of results, from the server's published rules.
#include "tsql/types/type.h"

#include <gtest/gtest.h>

namespace tsql {
namespace {

TEST(Types, arithmetic_of_decimals_gives_precision_and_scale_by_the_rules) {
    struct Row {
        ArithmeticKind operation;
        Type left;
        Type right;
        Type result;
    };
    const auto d = Type::decimal;
    const Row rows[] = {
        // + and -: the larger scale, one digit more before the point
        {ArithmeticKind::Add, d(18, 2), d(18, 2), d(19, 2)},
        {ArithmeticKind::Subtract, d(18, 2), d(18, 4), d(21, 4)},
        // *: scales add, p1 + p2 + 1
        {ArithmeticKind::Multiply, d(18, 2), d(10, 0), d(29, 2)},
        {ArithmeticKind::Multiply, d(18, 2), d(18, 2), d(37, 4)},
        // /: scale max(6, s1 + p2 + 1), cut to 38 digits
        {ArithmeticKind::Divide, d(18, 2), d(1, 0), d(22, 6)},
        {ArithmeticKind::Divide, d(18, 2), d(10, 0), d(29, 13)},
        {ArithmeticKind::Divide, d(18, 2), d(18, 2), d(38, 20)},
        {ArithmeticKind::Divide, d(38, 2), d(38, 2), d(38, 6)},
        // %: the smaller whole part, the larger scale
        {ArithmeticKind::Modulo, d(18, 2), d(5, 3), d(5, 3)},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(decimal_result(row.operation, row.left, row.right).text(), row.result.text())
            << row.left.text() << " and " << row.right.text();
    }
}

TEST(Types, two_types_meet_in_the_higher_one_with_the_digits_of_both) {
    const Type whole = Type::integer();
    EXPECT_EQ(common_type(whole, Type::decimal(18, 2)), Type::decimal(18, 2));
    EXPECT_EQ(common_type(Type::decimal(18, 4), Type::decimal(18, 2)), Type::decimal(20, 4));
    EXPECT_EQ(common_type(Type::of(TypeKind::Money), Type::decimal(9, 2)), Type::decimal(19, 4));
    EXPECT_EQ(common_type(Type::varchar(5), whole), whole);
    EXPECT_EQ(common_type(Type::varchar(5), Type::nvarchar(3)), Type::nvarchar(5));
    EXPECT_EQ(common_type(Type::of(TypeKind::DateTime), whole), Type::of(TypeKind::DateTime));
    EXPECT_EQ(common_type(Type{}, Type::varchar(4)), Type::varchar(4));
}

TEST(Types, a_type_goes_through_its_packed_form_unchanged) {
    for (const Type& type : {Type::decimal(38, 20), Type::varchar(-1), Type::nvarchar(4000),
                             Type::of(TypeKind::Date)}) {
        EXPECT_EQ(Type::unpack(type.packed()), type);
    }
}

TEST(Types, names_and_their_synonyms_are_known_without_case) {
    EXPECT_EQ(type_kind_named("NUMERIC"), TypeKind::Decimal);
    EXPECT_EQ(type_kind_named("double precision"), TypeKind::Float);
    EXPECT_EQ(type_kind_named("sysname"), TypeKind::NVarChar);
    EXPECT_FALSE(type_kind_named("geography"));
}

} // namespace
} // namespace tsql
