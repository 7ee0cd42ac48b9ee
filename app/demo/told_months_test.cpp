// Is the story one that a bookkeeper would believe?
#include "app/demo/told_months.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace app {
namespace {

using host::Amount;

const Story story = told_story();
const std::vector<ToldMonth> months = told_months(story);

// Every voucher in order, with the books as they stand after it.
template <typename Look> void walk(Look look) {
    RunningBooks books;
    for (const StoryBalance& balance : story.opening)
        books.open(balance.account, balance.debit_side ? balance.amount : -balance.amount);
    for (const ToldMonth& month : months) {
        for (const auto* vouchers : {&month.vouchers, &month.after_carrying}) {
            for (const ToldVoucher& voucher : *vouchers) {
                books.book(voucher);
                look(voucher, books);
            }
            if (vouchers == &month.vouchers && month.closes) books.carry_forward();
        }
    }
}

TEST(Story, is_a_closed_year_and_an_open_january) {
    ASSERT_EQ(months.size(), 13u);
    EXPECT_EQ(months.front().period.to_text(), "2023-01");
    EXPECT_EQ(months.back().period.to_text(), "2024-01");
    for (std::size_t i = 0; i < 12; ++i) EXPECT_TRUE(months[i].closes);
    EXPECT_FALSE(months.back().closes);
    EXPECT_EQ(story.today.to_text(), "2024-01-31");
}

TEST(Story, has_sixty_to_eighty_vouchers_a_month) {
    for (const ToldMonth& month : months) {
        EXPECT_GE(month.vouchers.size(), 60u) << month.period.to_text();
        EXPECT_LE(month.vouchers.size(), 80u) << month.period.to_text();
    }
}

TEST(Story, the_open_month_shows_every_state_of_a_voucher) {
    const ToldMonth& open = months.back();
    EXPECT_GT(open.posted, 0u);
    EXPECT_GT(open.audited, open.posted);
    EXPECT_GT(open.vouchers.size(), open.audited);
}

TEST(Story, opening_balances_balance) {
    Amount sum;
    for (const StoryBalance& balance : story.opening)
        sum += balance.debit_side ? balance.amount : -balance.amount;
    EXPECT_EQ(sum.to_text(), "0.00");
}

TEST(Story, every_voucher_balances_has_two_lines_and_a_day_of_its_month_in_order) {
    for (const ToldMonth& month : months) {
        host::Date last = month.period.first_day();
        for (const ToldVoucher& voucher : month.vouchers) {
            Amount difference;
            for (const ToldLine& line : voucher.lines) {
                difference += line.debit - line.credit;
                EXPECT_NE(line.debit.is_zero(), line.credit.is_zero()) << line.summary;
                EXPECT_EQ(line.debit.rounded(2) - line.credit.rounded(2), line.debit - line.credit);
            }
            const std::string& summary = voucher.lines.front().summary;
            EXPECT_TRUE(difference.is_zero()) << month.period.to_text() << " " << summary;
            EXPECT_GE(voucher.lines.size(), 2u) << summary;
            EXPECT_TRUE(month.period.contains(voucher.date)) << summary;
            EXPECT_GE(voucher.date, last) << summary;
            last = voucher.date;
        }
    }
}

TEST(Story, money_is_never_overdrawn) {
    walk([](const ToldVoucher& voucher, const RunningBooks& books) {
        for (const char* account : {"1001", "100201", "100202", "100903"})
            ASSERT_FALSE(books.balance(account).is_negative())
                << voucher.date.to_text() << " " << account << " "
                << books.balance(account).to_text();
    });
}

TEST(Story, assets_and_debts_never_turn_over) {
    walk([](const ToldVoucher& voucher, const RunningBooks& books) {
        for (const char* account : {"1111", "1201", "1231", "124301", "124302", "124303", "130101",
                                    "130102", "1133", "1801", "1901", "191101"})
            ASSERT_FALSE(books.balance(account).is_negative())
                << voucher.date.to_text() << " " << account;
        for (const char* account : {"1502", "2101", "2111", "2151", "2153", "2161", "217102",
                                    "217106", "217108", "217112", "217601", "218102", "2301"})
            ASSERT_FALSE((-books.balance(account)).is_negative())
                << voucher.date.to_text() << " " << account;
    });
}

// A story that sold more than was there would not have been told at all.
TEST(Story, nothing_is_sold_that_is_not_there) {
    Story small;
    small.start = small.open_period = host::Period::of(2023, 1);
    small.products = {{"tv", "电视机", "1243", Amount(), Amount(), 4, {5}, {0}}};
    StoryRule sale;
    sale.day = 5;
    sale.sells = {{"tv", "tv.sold"}};
    sale.lines = {{"1001", true, "n.tv*100", ""}, {"5101", false, "rest", ""}};
    small.rules = {sale};
    EXPECT_THROW(told_months(small), std::runtime_error);
    small.products[0].opening = 5;
    EXPECT_EQ(told_months(small)[0].after.in_stock("tv"), 0);
}

// A piece of what is left costs about what a piece is bought for.
TEST(Story, stock_is_valued_near_its_price) {
    for (const ToldMonth& month : months)
        for (const StoryProduct& product : story.products) {
            const Amount worth = product.cost.times(month.after.in_stock(product.key), 1);
            const Amount booked = month.after.balance(product.stock_account);
            EXPECT_GE(booked, worth.times(97, 100)) << month.period.to_text() << product.name;
            EXPECT_LE(booked, worth.times(103, 100)) << month.period.to_text() << product.name;
        }
}

TEST(Story, profit_and_loss_is_carried_forward_every_month_and_the_year_ends_with_a_profit) {
    for (std::size_t i = 0; i < 12; ++i) EXPECT_TRUE(months[i].after.balance("5").is_zero());
    EXPECT_TRUE(months[10].after.balance("3131").is_negative()) << "a profit stands in credit";
    const RunningBooks& after_december = months[11].after;
    EXPECT_TRUE(after_december.balance("3131").is_zero());
    for (const char* emptied : {"314102", "314109", "314110", "21710101", "21710103", "21710105"})
        EXPECT_TRUE(after_december.balance(emptied).is_zero()) << emptied;
}

// The figures are taken apart again: the reserve is 10 % of the profit that 3131 was closed with.
TEST(Story, the_surplus_reserve_is_a_tenth_of_the_profit) {
    const ToldMonth& december = months[11];
    ASSERT_EQ(december.after_carrying.size(), 4u);
    const Amount profit = december.after_carrying[0].lines[0].debit;
    EXPECT_GT(profit, Amount::from_whole(300'000));
    EXPECT_EQ(december.after_carrying[1].lines[0].debit, profit.times(10, 100));
    EXPECT_EQ(december.after_carrying[1].lines[1].debit, profit.times(5, 100));
}

TEST(Story, seasons_show_fans_in_summer_television_sets_in_autumn) {
    const auto sold = [](std::size_t month, const char* account) {
        Amount sum;
        for (const ToldVoucher& voucher : months[month].vouchers)
            for (const ToldLine& line : voucher.lines)
                if (line.account == account) sum += line.credit;
        return sum;
    };
    EXPECT_GT(sold(6, "510103"), sold(0, "510103").times(10, 1)) << "fans: July against January";
    EXPECT_GT(sold(9, "510101"), sold(6, "510101").times(3, 2)) << "sets: October against July";
}

TEST(Story, income_tax_of_the_year_is_a_quarter_of_the_profit_before_it) {
    Amount tax, profit;
    for (std::size_t i = 0; i < 12; ++i)
        for (const ToldVoucher& voucher : months[i].vouchers)
            for (const ToldLine& line : voucher.lines) {
                if (!line.account.starts_with("5")) continue;
                if (line.account == "5701") tax += line.debit;
                else profit += line.credit - line.debit;
            }
    EXPECT_EQ(tax, profit.times(25, 100));
}

TEST(Story, all_money_that_came_or_went_is_allocated_to_a_cash_flow_item) {
    const std::set<char> in{'1', '2', '3'};
    walk([&](const ToldVoucher& voucher, const RunningBooks&) {
        const Amount received = money_received(voucher);
        EXPECT_EQ(received.is_zero(), voucher.cash_item.empty())
            << voucher.date.to_text() << " " << voucher.lines.front().summary;
        if (received.is_zero()) return;
        // The second digit of an item tells inflow from outflow.
        EXPECT_EQ(voucher.cash_item.at(1), received.is_negative() ? '2' : '1')
            << voucher.lines.front().summary;
        EXPECT_TRUE(in.contains(voucher.cash_item.at(0)));
    });
}

TEST(Story, is_told_alike_every_time) {
    const std::vector<ToldMonth> again = told_months(told_story());
    EXPECT_EQ(again.back().after.balances(), months.back().after.balances());
}

TEST(Story, templates_are_vouchers_of_the_open_month) {
    EXPECT_EQ(template_places(story, months.back()).size(), story.templates.size());
}

TEST(Story, a_recurring_voucher_without_amounts_is_left_out) {
    Story small;
    small.start = small.open_period = host::Period::of(2023, 1);
    StoryRule nothing;
    nothing.day = 5;
    nothing.lines = {{"1001", true, "0", ""}, {"1002", false, "rest", ""}};
    small.rules = {nothing};
    EXPECT_TRUE(told_months(small)[0].vouchers.empty());
}

} // namespace
} // namespace app
