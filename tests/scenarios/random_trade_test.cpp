// Random trade, kept by the program's forms and by plain addition, agrees to the cent.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

#include "tests/scenarios/trade_run.h"

namespace tests {

namespace {

unsigned number_from(const char* name, unsigned otherwise) {
    const char* text = std::getenv(name);
    return text == nullptr ? otherwise : static_cast<unsigned>(std::atoi(text));
}

constexpr unsigned usual_books = 10;
constexpr int acts = 60;

} // namespace

// ZF_RANDOM_BOOKS says how many books are kept, ZF_RANDOM_SEED where their seeds begin. After every
// act all settlement columns and the balances of the side it was on are compared, now and then the
// reports over random ranges of days.
TEST(RandomTrade, settles_balances_and_moves_money_as_plain_addition_does) {
    const unsigned first = number_from("ZF_RANDOM_SEED", 1);
    const unsigned count = number_from("ZF_RANDOM_BOOKS", usual_books);
    TradeCount sum;
    for (unsigned seed = first; seed < first + count; ++seed) {
        TradeRun run(seed);
        for (int act = 1; act <= acts; ++act) {
            SCOPED_TRACE("seed " + std::to_string(seed) + ", act " + std::to_string(act));
            run.step();
            if (act % 20 == 0) run.compare_reports();
            if (HasFailure()) return; // what follows would only repeat it
        }
        for (const auto& [name, times] : run.count().acts) sum.acts[name] += times;
        sum.figures += run.count().figures;
    }
    std::cout << "seeds " << first << " to " << first + count - 1 << ": " << sum.figures
              << " amounts compared\n";
    for (const auto& [name, times] : sum.acts) std::cout << "  " << times << " " << name << "\n";
    EXPECT_GT(sum.figures, 0u);
    if (count >= usual_books) { // enough for each kind of act to have had its chance
        EXPECT_EQ(sum.acts.size(), 22u);
    }
}

// ---- the test itself

// How many differences are told once the books were changed past the forms.
int differences_after(const std::string& damage) {
    TradeRun run(7);
    for (int act = 0; act < 10; ++act) run.step();
    run.books().execute(damage);
    testing::TestPartResultArray told;
    const testing::ScopedFakeTestPartResultReporter reporter(
        testing::ScopedFakeTestPartResultReporter::INTERCEPT_ALL_THREADS, &told);
    run.compare_both_sides();
    run.compare_reports();
    return told.size();
}

TEST(RandomTrade, a_cent_that_the_books_hold_otherwise_is_found) {
    EXPECT_EQ(differences_after(""), 0);
    for (const char* damage : {"UPDATE D8102 SET YSMONEY=YSMONEY+0.01 WHERE NOID='初P1'",
                               "UPDATE D8202 SET SUMMONEY=SUMMONEY-0.01 WHERE NOID='初P1'",
                               "UPDATE D1010 SET BEGIN_MONEY=0.01 WHERE JY_ID='3'",
                               "INSERT INTO D641 (NOID,KH_GYS_ID,JY_ID,JY_KM,MONEY,MONEY_SS,BDATE,"
                               "USER_ID) VALUES ('X','P1','1',1,0.01,0.01,'2024-03-01','admin')"})
        EXPECT_GT(differences_after(damage), 0) << damage;
}

// ---- the plain addition itself, on figures worked out by hand

TEST(NaiveTrade, spreads_money_over_the_oldest_first_and_what_came_back_adds_to_it) {
    NaiveTrade trade;
    trade.items = {{"S2", "P1", "2024-02-01", NaiveItem::sale, 30000, 0},
                   {"R1", "P1", "2024-01-15", NaiveItem::goods_back, 5000, 0},
                   {"S1", "P1", "2024-01-10", NaiveItem::sale, 20000, 2000},
                   {"X", "P2", "2024-01-01", NaiveItem::sale, 100, 0}};
    using Shares = std::vector<NaiveShare>;
    EXPECT_EQ(trade.spread("P1", 10000), (Shares{{"S1", 10000}}));
    EXPECT_EQ(trade.spread("P1", 18000), (Shares{{"S1", 18000}}));
    EXPECT_EQ(trade.spread("P1", 20000), (Shares{{"S1", 18000}, {"R1", -5000}, {"S2", 7000}}));
    trade.settlements.push_back({"K1", "P1", "2024-02-02", "1", NaiveSettlement::settles, 19000,
                                 1000, trade.spread("P1", 20000)});
    EXPECT_EQ(trade.owed("P1"), 23000);
    EXPECT_EQ(trade.open(trade.items[1]), 0);
    const NaiveBalance february = trade.balance("P1", "2024-02-01", "2024-02-29");
    EXPECT_EQ(february.opening, 13000);
    EXPECT_EQ(february.added, 30000);
    EXPECT_EQ(february.settled, 20000);
    EXPECT_EQ(february.closing(), 23000);
}

} // namespace tests
