// Which texts count as the same statement.
#include "tsql/lexer/normal_form.h"

#include <gtest/gtest.h>

namespace tsql {
namespace {

TEST(NormalForm, literals_are_taken_out_and_their_class_stays) {
    const NormalForm form = normal_form("SELECT K FROM A WHERE V > 1.50 AND K='x''y' -- note");
    EXPECT_EQ(form.key, "SELECT K FROM A WHERE V > ?d3,2 AND K = ?t");
    ASSERT_EQ(form.literals.size(), 2U);
    EXPECT_EQ(form.literals[0].text, "1.50");
    EXPECT_EQ(form.literals[1].text, "x'y");
}

TEST(NormalForm, texts_that_differ_in_figures_blanks_and_comments_share_a_key) {
    EXPECT_EQ(normal_form("delete from A where ID=1").key,
              normal_form("delete  from A /* x */ where ID = 7").key);
}

TEST(NormalForm, the_digits_that_decide_a_type_stay_in_the_key) {
    EXPECT_NE(normal_form("SELECT 0.00").key, normal_form("SELECT 0.0").key);
    EXPECT_NE(normal_form("SELECT 1").key, normal_form("SELECT 10").key);
    EXPECT_NE(normal_form("SELECT 'a'").key, normal_form("SELECT N'a'").key);
}

TEST(NormalForm, a_name_in_brackets_is_no_literal) {
    EXPECT_EQ(normal_form("SELECT [1]").key, "SELECT [1]");
}

} // namespace
} // namespace tsql
