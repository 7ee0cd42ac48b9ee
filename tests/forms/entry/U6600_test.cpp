// Every function code opens its form or is told to be closed.
#include <gtest/gtest.h>

#include "tests/forms/small_books.h"
#include "tests/support/person.h"

namespace tests {
namespace {

TEST(Dispatch, a_code_without_a_form_is_answered_with_the_code) {
    FakeData data;
    Person anna(data);
    for (const int code : {-1, 0, 627, 634, 640, 644, 670, 688, 698, 700, 100000}) {
        anna.open(code);
        anna.expect_message("模块暂不开放!" + std::to_string(code));
        EXPECT_EQ(anna.active(), "") << code;
    }
}

TEST(Dispatch, both_voucher_functions_open_the_same_class_and_carry_their_code) {
    FakeData data;
    answer_as_small_books(data);
    Person anna(data);
    anna.open(661);
    anna.open(662);
    const auto forms = anna.request({{"op", "forms"}}).at("forms");
    ASSERT_EQ(forms.size(), 2u);
    EXPECT_EQ(forms[0].at("class"), "TF6661");
    EXPECT_EQ(forms[0].at("tag"), 662);
    EXPECT_EQ(forms[0].at("caption"), "凭证审核");
    EXPECT_EQ(forms[1].at("class"), "TF6661");
    EXPECT_EQ(forms[1].at("tag"), 661);
}

TEST(Dispatch, a_form_whose_opening_fails_does_not_stay) {
    FakeData data; // answers nothing
    Person anna(data);
    anna.request({{"op", "open"}, {"code", 682}});
    const auto forms = anna.request({{"op", "forms"}}).at("forms");
    EXPECT_LE(forms.size(), 1u);
    anna.forget_messages();
}

} // namespace
} // namespace tests
