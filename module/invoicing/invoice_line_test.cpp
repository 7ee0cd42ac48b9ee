// The arithmetic of one line of a sales document.
#include "module/invoicing/invoice_line.h"

#include <gtest/gtest.h>

namespace module {
namespace {

Amount number(const char* text) { return *Amount::parse(text); }

TEST(InvoiceLine, a_quantity_is_whole_larger_units_and_the_rest) {
    // quantity  a larger unit holds  larger units  rest
    const char* const cases[][4] = {{"26", "12", "2", "2"},      {"24", "12", "2", "0"},
                                    {"-26", "12", "-2", "-2"},   {"2.5", "1", "2", "0.5"},
                                    {"7", "2.5", "2", "2"},      {"5", "0", "5", "0"},
                                    {"0.25", "12", "0", "0.25"}};
    for (const auto& [quantity, conversion, pieces, rest] : cases) {
        const Packed result = packed(number(quantity), number(conversion));
        EXPECT_EQ(result.pieces, number(pieces)) << quantity << " by " << conversion;
        EXPECT_EQ(result.rest, number(rest)) << quantity << " by " << conversion;
        EXPECT_EQ(unpacked(result, number(conversion)), number(quantity));
    }
}

TEST(InvoiceLine, amounts_and_prices_are_rounded_as_a_bookkeeper_rounds) {
    EXPECT_EQ(line_amount(number("3"), number("33.3333"), 2), number("100.00"));
    EXPECT_EQ(line_amount(number("-0.5"), number("0.25"), 2), number("-0.13"));
    EXPECT_EQ(line_price(number("100"), number("3"), 4), number("33.3333"));
    EXPECT_EQ(line_price(number("100"), number("0"), 2), number("0"));
}

TEST(InvoiceLine, a_format_shows_as_many_decimals_as_it_is_long_less_two) {
    EXPECT_EQ(decimals_of("0.00"), 2);
    EXPECT_EQ(decimals_of("0.0000"), 4);
    EXPECT_EQ(decimals_of("0"), 0);
    EXPECT_EQ(decimals_of(""), 0);
}

} // namespace
} // namespace module
