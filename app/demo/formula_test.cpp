// Precedence, functions, names and mistakes of formulas.
#include "app/demo/formula.h"

#include <gtest/gtest.h>

namespace app {
namespace {

const FormulaNames names{
    [](std::string_view name) {
        if (name == "tv.price") return *host::Amount::parse("2450");
        throw FormulaError("unknown name");
    },
    [](std::string_view function, std::string_view argument) {
        return *host::Amount::parse(function == "dr" && argument == "1131" ? "100.50" : "0");
    }};

std::string result(std::string_view formula) {
    return worked_out(formula, names).to_plain_text();
}

TEST(Formula, products_come_before_sums_and_parentheses_before_both) {
    EXPECT_EQ(result("2+3*4"), "14");
    EXPECT_EQ(result("(2+3)*4"), "20");
    EXPECT_EQ(result("10-4-3"), "3");
    EXPECT_EQ(result("12/4*2"), "6");
    EXPECT_EQ(result("-2*-3"), "6");
}

TEST(Formula, steps_keep_four_decimals_half_away_from_zero) {
    EXPECT_EQ(result("1/3"), "0.3333");
    EXPECT_EQ(result("0.00005*1"), "0.0001");
    EXPECT_EQ(result("100.50*0.13"), "13.065");
}

TEST(Formula, names_and_accounts_are_asked_for) {
    EXPECT_EQ(result("tv.price*2"), "4900");
    EXPECT_EQ(result("dr(1131)+1"), "101.5");
}

TEST(Formula, whole_rounds_and_max_and_min_choose) {
    EXPECT_EQ(result("whole(2.5)"), "3");
    EXPECT_EQ(result("whole(-2.5)"), "-3");
    EXPECT_EQ(result("max(0,1-2)"), "0");
    EXPECT_EQ(result("min(3,whole(7/2))"), "3");
}

TEST(Formula, mistakes_are_told) {
    for (const char* formula : {"", "1+", "2)", "(2", "1/0", "nobody", "max(1)", "1.2.3", "a b"})
        EXPECT_THROW(result(formula), FormulaError) << formula;
}

} // namespace
} // namespace app
