// Amounts in capital numerals read as the rules of payment documents write them.
#include "module/vouchers/capital_numerals.h"

namespace module {
namespace {

struct Reading {
    const char* amount;
    const char* words;
};

class CapitalNumerals : public testing::TestWithParam<Reading> {};

TEST_P(CapitalNumerals, are_written_as_on_a_payment_document) {
    EXPECT_EQ(capital_numerals(*Amount::parse(GetParam().amount)), GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(
    Readings, CapitalNumerals,
    testing::Values(
        // amount              words
        Reading{"0", "零元整"}, Reading{"0.05", "伍分"}, Reading{"0.50", "伍角整"},
        Reading{"1", "壹元整"}, Reading{"10.05", "壹拾元零伍分"},
        Reading{"1409.50", "壹仟肆佰零玖元伍角整"}, Reading{"6007.14", "陆仟零柒元壹角肆分"},
        Reading{"1680.32", "壹仟陆佰捌拾元叁角贰分"},
        Reading{"16409.02", "壹万陆仟肆佰零玖元零贰分"}, Reading{"325.04", "叁佰贰拾伍元零肆分"},
        Reading{"87750", "捌万柒仟柒佰伍拾元整"}, Reading{"100000", "壹拾万元整"},
        Reading{"107000.53", "壹拾万零柒仟元伍角叁分"}, Reading{"100001", "壹拾万零壹元整"},
        Reading{"100000000", "壹亿元整"}, Reading{"100000001", "壹亿零壹元整"},
        Reading{"120034005.6", "壹亿贰仟零叁万肆仟零伍元陆角整"},
        Reading{"1000000000000", "壹万亿元整"}, Reading{"-20.10", "负贰拾元壹角整"},
        Reading{"0.005", "壹分"}));

} // namespace
} // namespace module
