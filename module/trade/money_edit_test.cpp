// The field of an amount in the head of a document.
#include "module/trade/money_edit.h"

#include <gtest/gtest.h>

#include "host/forms/form.h"

namespace module {
namespace {

class Head : public TForm {
public:
    Head() : TForm(nullptr) {}
    MoneyEdit MONEY{this, "MONEY", "实收金额"};
};

TEST(MoneyEdit, a_plain_number_stays_as_it_was_typed_any_other_is_written_out) {
    const std::pair<const char*, const char*> typed[] = {
        {"95", "95"},     {"95.5", "95.5"},       {"95.50", "95.50"}, {"0", "0"},
        {"-5", "-5"},     {"0.07", "0.07"},       {"007", "7.00"},    {"1,234.5", "1234.50"},
        {" 95 ", "95.00"}, {"95.126", "95.13"},   {"", ""},           {".5", "0.50"},
        {"5.", "5.00"}};
    for (const auto& [text, kept] : typed) {
        Head head;
        head.MONEY.enter_text(text);
        EXPECT_EQ(head.MONEY.Text.get(), kept) << text;
        head.MONEY.leave();
        EXPECT_EQ(head.MONEY.Text.get(), kept) << text;
    }
}

TEST(MoneyEdit, a_blank_is_sent_as_0) {
    Head head;
    EXPECT_EQ(head.MONEY.sent_text(), "0");
    head.MONEY.enter_text("12.3");
    EXPECT_EQ(head.MONEY.sent_text(), "12.3");
}

} // namespace
} // namespace module
