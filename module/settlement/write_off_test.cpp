// The sign of a written-off amount, and the over-receipt.
#include "module/settlement/write_off.h"

#include <gtest/gtest.h>

namespace module {
namespace {

Amount amount(const char* text) {
    return *Amount::parse(text);
}

TEST(WriteOff, an_amount_has_the_sign_of_what_is_owed) {
    struct Attempt {
        const char* total;
        const char* share;
        bool fits;
    };
    const Attempt attempts[] = {// owed, written off, verdict
                                {"100", "100", true}, {"100", "0.01", true}, {"100", "0", true},
                                {"100", "-0.01", false}, {"-40", "-40", true}, {"-40", "0", true},
                                {"-40", "0.01", false},  {"0", "5", true},     {"0", "-5", true}};
    for (const Attempt& attempt : attempts) {
        WriteOff line;
        line.total = amount(attempt.total);
        line.share = amount(attempt.share);
        EXPECT_EQ(sign_fits(line), attempt.fits) << attempt.total << " " << attempt.share;
    }
}

TEST(WriteOff, the_first_line_with_a_wrong_sign_is_named) {
    WriteOff owed, returned;
    owed.total = amount("100");
    owed.share = amount("60");
    returned.total = amount("-40");
    returned.share = amount("-40");
    EXPECT_EQ(first_wrong_sign({owed, returned}), -1);
    EXPECT_EQ(sum_of_shares({owed, returned}), amount("20"));
    returned.share = amount("40");
    EXPECT_EQ(first_wrong_sign({owed, returned, returned}), 1);
}

TEST(OverReceipt, is_the_ten_thousandth_part_of_the_categories) {
    const Amount first = over_receipt_with({}, amount("200"));
    EXPECT_EQ(first.to_plain_text(), "0.02");
    EXPECT_EQ(over_receipt_with(first, amount("35.5")).to_plain_text(), "0.0236"); // 0.02355
    EXPECT_EQ(over_receipt_with(first, amount("35.4")).to_plain_text(), "0.0235"); // 0.02354
    EXPECT_EQ(over_receipt_with(first, amount("-200")).to_plain_text(), "0");
}

TEST(OverReceipt, each_step_is_rounded_half_away_from_zero) {
    Amount sum;
    for (int category = 0; category < 3; ++category) sum = over_receipt_with(sum, amount("0.5"));
    EXPECT_EQ(sum.to_plain_text(), "0.0003"); // each half ten-thousandth counts as one
    EXPECT_EQ(over_receipt_with({}, amount("-0.5")).to_plain_text(), "-0.0001");
    EXPECT_EQ(over_receipt_with({}, amount("0.49")).to_plain_text(), "0");
}

} // namespace
} // namespace module
