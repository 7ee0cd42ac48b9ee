// Random books, kept by the program and by plain addition, hold the same balances to the cent.
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

#include "tests/scenarios/book_comparison.h"
#include "tests/scenarios/book_run.h"
#include "tests/scenarios/ledger_comparison.h"
#include "tests/scenarios/statement_comparison.h"

namespace tests {

namespace {

int number_from(const char* name, int otherwise) {
    const char* text = std::getenv(name);
    return text == nullptr ? otherwise : std::atoi(text);
}

constexpr int usual_books = 25;
constexpr int times_to_shrink = 300;

// What the plain ledger holds, as the tables of the books hold it.
std::string written(const NaiveLedger& ledger) {
    std::string batch = "UPDATE D6600 SET PARAM='" + ledger.first() + "' WHERE ID IN (1, 2);";
    for (const NaiveVoucher& voucher : ledger.vouchers()) {
        batch += "INSERT INTO D6601 (NOID,PZQJ,PZZ,PZZ_H,BDATE,USER_ID,T,D) VALUES ('" +
                 voucher.key + "','" + voucher.period + "','" + voucher.word + "'," +
                 std::to_string(voucher.number) + ",'" + voucher.period + "-05','admin',1,1);";
        int place = 0;
        for (const NaiveLine& line : voucher.lines) {
            batch += "INSERT INTO D6601A (NOID,ZY,KM_ID,J,D,INX) VALUES ('" + voucher.key +
                     "','往来','" + line.account + "'," + money(line.debit) + "," +
                     money(line.credit) + "," + std::to_string(place++) + ");";
        }
        for (const auto& [item, share] : voucher.cash) {
            batch += "INSERT INTO D6601B (NOID,D6820ID,J,D) VALUES ('" + voucher.key + "','" +
                     item + "'," + money(share.in) + "," + money(share.out) + ");";
        }
    }
    for (const auto& [key, figures] : ledger.balances()) {
        batch += "INSERT INTO D6602 (QJ,KM_ID,INX,J,D,SY_J,SY_D) VALUES ('" + key.period + "','" +
                 key.account + "'," + std::to_string(key.kind) + "," + money(figures.debit) + "," +
                 money(figures.credit) + "," + money(figures.carried_debit) + "," +
                 money(figures.carried_credit) + ");";
    }
    return batch;
}

} // namespace

// ZF_RANDOM_BOOKS says how many books are kept, ZF_RANDOM_SEED where their seeds begin.
TEST(RandomBooks, hold_in_every_period_and_account_what_plain_addition_gives) {
    const auto first = static_cast<std::uint32_t>(number_from("ZF_RANDOM_SEED", 1));
    const auto count = static_cast<std::uint32_t>(number_from("ZF_RANDOM_BOOKS", usual_books));
    BookVerdict sum;
    std::size_t audited = 0, strict = 0;
    for (std::uint32_t seed = first; seed < first + count; ++seed) {
        const BookPlan plan = plan_books(seed);
        const BookVerdict verdict = keep_books(plan);
        sum.steps += verdict.steps;
        sum.vouchers += verdict.vouchers;
        sum.allocated += verdict.allocated;
        sum.reversed += verdict.reversed;
        if (plan.strict) ++strict;
        sum.figures += verdict.figures;
        if (verdict.audited) ++audited;
        sum.ledger_figures += verdict.ledger_figures;
        sum.statement_figures += verdict.statement_figures;
        if (verdict.difference.empty()) continue;
        const BookPlan shortest = shrink(plan, times_to_shrink, [](const BookPlan& shorter) {
            return !keep_books(shorter).difference.empty();
        });
        FAIL() << verdict.difference << "\nafter " << verdict.steps << " steps of seed " << seed
               << ". The shortest plan found:\n"
               << text_of(shortest) << "\nends with: " << keep_books(shortest).difference;
    }
    std::cout << "seeds " << first << " to " << first + count - 1 << ": " << sum.steps
              << " steps, " << sum.vouchers << " vouchers typed, " << sum.allocated
              << " allocated, " << sum.reversed << " taken back in red, " << sum.figures
              << " amounts of balances and " << sum.ledger_figures << " of ledgers and "
              << sum.statement_figures << " of statements compared, " << audited
              << " books audited, " << strict << " kept strictly\n";
    if (count >= usual_books) { // enough for each kind of act to have had its chance
        EXPECT_GT(sum.allocated, 0U);
        EXPECT_GT(sum.reversed, 0U);
        EXPECT_GT(strict, 0U);
    }
    EXPECT_GT(sum.figures, 0U);
    EXPECT_GT(sum.ledger_figures, 0U);
    EXPECT_GT(sum.statement_figures, 0U);
}

// ---- the test itself

TEST(RandomBooks, a_voucher_the_books_do_not_hold_is_found) {
    Books books(small_books(1));
    NaiveLedger ledger(starting_chart());
    EXPECT_NO_THROW(compare_books(books, ledger));
    ledger.vouchers().push_back({.key = "2024-03记001", .period = "2024-03", .word = "记"});
    EXPECT_THROW(compare_books(books, ledger), Difference);
}

TEST(RandomBooks, a_balance_that_is_a_cent_off_is_found) {
    Books books(small_books(1));
    books.execute("INSERT INTO D6602 (QJ,KM_ID,INX,J) VALUES ('2024-03','1001',1,'12.34')");
    NaiveLedger ledger(starting_chart());
    ledger.set_up("2024-03-02", {{"1001", {.balance = 1233}}});
    EXPECT_THROW(compare_books(books, ledger), Difference);
}

// March 2024: 50.00 of cash to begin with, 7.00 of sales into the bank, posted.
class OneVoucher : public testing::Test {
protected:
    OneVoucher() : books(small_books(1)), ledger(starting_chart()) {
        ledger.set_up("2024-03-01", {{"1001", {.balance = 5000}}, {"2121", {.balance = 5000}}});
        NaiveVoucher voucher{.key = "2024-03记001", .period = "2024-03", .word = "记", .number = 1};
        voucher.lines = {{"100202", 700, 0}, {"510101", 0, 700}};
        voucher.cash = {{"1101", {700, 0}}};
        voucher.audited = true;
        ledger.vouchers().push_back(voucher);
        ledger.post();
        books.execute(written(ledger));
    }
    // `place` is "TABLE SET FIELD=FIELD+%c WHERE …".
    void add(const std::string& cent, const std::string& place) {
        std::string batch = "UPDATE " + place;
        books.execute(batch.replace(batch.find("%c"), 2, cent));
    }
    Books books;
    NaiveLedger ledger;
};

TEST_F(OneVoucher, a_cent_that_a_ledger_shows_wrong_is_found) {
    EXPECT_NO_THROW(compare_ledgers(books, ledger));
    for (const char* place : {"D6601A SET J=J+%c WHERE KM_ID='100202'",
                              "D6601A SET D=D+%c WHERE KM_ID='510101'",
                              "D6601B SET J=J+%c WHERE D6820ID='1101'",
                              "D6602 SET J=J+%c WHERE KM_ID='1002' AND INX=0 AND QJ='2024-03'",
                              "D6602 SET D=D+%c WHERE KM_ID='5101' AND INX=1 AND QJ='2024-03'",
                              "D6602 SET J=J+%c WHERE KM_ID='1001' AND INX=1 AND QJ='2024-02'",
                              "D6602 SET SY_D=SY_D+%c WHERE KM_ID='510101' AND INX=0 AND "
                              "QJ='2024-03'"}) {
        add("0.01", place);
        EXPECT_THROW(compare_ledgers(books, ledger), Difference) << place;
        add("(-0.01)", place);
    }
    EXPECT_NO_THROW(compare_ledgers(books, ledger));
}

TEST_F(OneVoucher, a_cent_that_a_statement_shows_wrong_is_found) {
    Person person(books.data(), books.person());
    Bookkeeper anna(person);
    EXPECT_NO_THROW(compare_statements(anna, ledger));
    for (const char* place : {"D6602 SET J=J+%c WHERE KM_ID='1001' AND INX=1 AND QJ='2024-03'",
                              "D6602 SET D=D+%c WHERE KM_ID='2121' AND INX=1 AND QJ='2024-02'",
                              "D6602 SET SY_D=SY_D+%c WHERE KM_ID='510101' AND INX=0",
                              "D6601B SET J=J+%c WHERE D6820ID='1101'"}) {
        add("0.01", place);
        EXPECT_THROW(compare_statements(anna, ledger), Difference) << place;
        add("(-0.01)", place);
    }
    EXPECT_NO_THROW(compare_statements(anna, ledger));
}

TEST(RandomBooks, a_plan_that_fails_is_shortened_to_the_steps_that_matter) {
    const auto fails = [](const BookPlan& plan) {
        bool carried = false;
        for (const Step& step : plan.steps) {
            if (step.act == Act::CarryForward) carried = true;
            if (step.act == Act::Close && carried) return true;
        }
        return false;
    };
    BookPlan plan = plan_books(3);
    plan.steps.insert(plan.steps.begin() + 2, {Act::CarryForward, 1});
    plan.steps.push_back({Act::Close, 1});
    const BookPlan shortest = shrink(plan, 1000, fails);
    ASSERT_EQ(shortest.steps.size(), 2U) << text_of(shortest);
    EXPECT_EQ(shortest.steps[0].act, Act::CarryForward);
    EXPECT_EQ(shortest.steps[1].act, Act::Close);
    EXPECT_TRUE(shortest.openings.empty());
}

} // namespace tests
