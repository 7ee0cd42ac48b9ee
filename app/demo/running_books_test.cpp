// Balances, turnover and pieces as vouchers come.
#include "app/demo/running_books.h"

#include <gtest/gtest.h>

namespace app {
namespace {

host::Amount amount(const char* text) { return *host::Amount::parse(text); }

ToldVoucher voucher(const char* debit, const char* credit, const char* money) {
    return {{}, 1, {{"", debit, amount(money), {}}, {"", credit, {}, amount(money)}}, ""};
}

TEST(RunningBooks, a_balance_is_that_of_everything_below_the_code) {
    RunningBooks books;
    books.open("113101", amount("100.00"));
    books.book(voucher("113102", "5101", "40.00"));
    EXPECT_EQ(books.balance("1131").to_text(), "140.00");
    EXPECT_EQ(books.balance("113102").to_text(), "40.00");
    EXPECT_EQ(books.balance("1132").to_text(), "0.00");
}

TEST(RunningBooks, carrying_forward_empties_profit_and_loss_and_leaves_the_turnover) {
    RunningBooks books;
    books.book(voucher("1001", "5101", "100.00"));
    books.book(voucher("5502", "1001", "30.00"));
    books.carry_forward();
    EXPECT_EQ(books.balance("5").to_text(), "0.00");
    EXPECT_EQ(books.balance("3131").to_text(), "-70.00");
    EXPECT_EQ(books.moved_in_month("5502").to_text(), "30.00");
    books.end_month();
    EXPECT_EQ(books.moved_in_month("5502").to_text(), "0.00");
    EXPECT_EQ(books.moved_in_year("5502").to_text(), "30.00");
    books.end_year();
    EXPECT_EQ(books.moved_in_year("5502").to_text(), "0.00");
}

// 10 pieces at 9.00 and 20 at 12.00 are 30 at 11.00.
TEST(RunningBooks, what_was_sold_costs_the_average_of_the_month) {
    RunningBooks books;
    books.open("1243", amount("330.00"));
    books.bring_in("tv", 10);
    books.bring_in("tv", 20);
    books.take_out("tv", 6);
    EXPECT_EQ(books.in_stock("tv"), 24);
    EXPECT_EQ(books.cost_of_sold("tv", "1243").to_text(), "66.00");
    books.end_month();
    EXPECT_EQ(books.in_stock("tv"), 24);
    EXPECT_EQ(books.cost_of_sold("tv", "1243").to_text(), "0.00");
    EXPECT_EQ(books.cost_of_sold("radio", "1243").to_text(), "0.00");
}

TEST(RunningBooks, money_that_only_changed_its_place_was_not_received) {
    EXPECT_EQ(money_received(voucher("1001", "100201", "50.00")).to_text(), "0.00");
    EXPECT_EQ(money_received(voucher("100201", "1131", "50.00")).to_text(), "50.00");
    EXPECT_EQ(money_received(voucher("5502", "1001", "50.00")).to_text(), "-50.00");
}

} // namespace
} // namespace app
