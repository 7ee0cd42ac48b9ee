// Where pages end, and what an account book carries from page to page.
#include "host/printing/table_pages.h"

#include <gtest/gtest.h>

namespace host {

namespace {

Sheet list_of(int rows, bool footers) {
    Sheet sheet;
    sheet.columns = {{.field = "J", .title = "借方", .amount = true}};
    sheet.rows = rows;
    sheet.cell = [](int row, int) {
        return SheetCell{Value{Amount::from_whole(row + 1)}, std::to_string(row + 1)};
    };
    if (footers) sheet.footers = {SheetCell{}};
    return sheet;
}

std::vector<int> counts(const std::vector<TablePage>& pages) {
    std::vector<int> result;
    for (const TablePage& page : pages) result.push_back(page.count);
    return result;
}

Amount sum(const SumsSoFar& sums) { return sums ? sums->front() : Amount(); }

} // namespace

TEST(TablePages, a_page_holds_as_many_rows_as_it_has_lines) {
    EXPECT_EQ(counts(break_into_pages(list_of(0, false), 10)), std::vector<int>{0});
    EXPECT_EQ(counts(break_into_pages(list_of(10, false), 10)), std::vector<int>{10});
    EXPECT_EQ(counts(break_into_pages(list_of(11, false), 10)), (std::vector<int>{10, 1}));
}

TEST(TablePages, the_footer_takes_a_line_and_never_stands_alone) {
    EXPECT_EQ(counts(break_into_pages(list_of(9, true), 10)), std::vector<int>{9});
    const auto pages = break_into_pages(list_of(10, true), 10);
    EXPECT_EQ(counts(pages), (std::vector<int>{9, 1}));
    EXPECT_FALSE(pages[0].footers);
    EXPECT_TRUE(pages[1].footers);
    EXPECT_EQ(counts(break_into_pages(list_of(20, true), 10)), (std::vector<int>{10, 9, 1}));
}

TEST(TablePages, every_row_stands_on_one_page_whatever_the_page_holds) {
    for (int rows = 1; rows < 60; ++rows)
        for (int lines = 4; lines < 15; ++lines)
            for (const bool carried : {false, true}) {
                Sheet sheet = list_of(rows, !carried);
                if (carried) sheet.carried = CarriedSums{.added = {"J"}};
                int next = 0;
                for (const TablePage& page : break_into_pages(sheet, lines)) {
                    EXPECT_EQ(page.first, next);
                    EXPECT_GT(page.count, 0);
                    EXPECT_LE(page.count + page.carried_in + page.carried_out + page.footers,
                              lines);
                    next += page.count;
                }
                EXPECT_EQ(next, rows) << rows << " rows, " << lines << " lines";
            }
}

// Rows of 1, 2, 3 … yuan, five lines a page: 1 to 4, then 5 to 7, then the rest.
TEST(TablePages, what_was_added_up_is_carried_over_and_taken_up_again) {
    Sheet sheet = list_of(9, false);
    sheet.carried = CarriedSums{.added = {"J"}};
    const auto pages = break_into_pages(sheet, 5);
    EXPECT_EQ(counts(pages), (std::vector<int>{4, 3, 2}));
    EXPECT_FALSE(pages[0].carried_in);
    EXPECT_EQ(sum(pages[0].out), Amount::from_whole(1 + 2 + 3 + 4));
    EXPECT_TRUE(pages[1].carried_in);
    EXPECT_EQ(pages[1].in, pages[0].out);
    EXPECT_EQ(sum(pages[1].out), Amount::from_whole(1 + 2 + 3 + 4 + 5 + 6 + 7));
    EXPECT_EQ(pages[2].in, pages[1].out);
    EXPECT_FALSE(pages[2].carried_out);
}

// A month's total closes what was added up: the carried sum begins again with the next month.
TEST(TablePages, a_total_begins_the_sum_anew) {
    Sheet sheet = list_of(9, false);
    sheet.carried = CarriedSums{.added = {"J"}};
    sheet.carried->row = [](int row) { return row == 1 ? BookRow::Opening : BookRow::Added; };
    auto pages = break_into_pages(sheet, 5);
    EXPECT_EQ(sum(pages[0].out), Amount::from_whole(3 + 4));
    sheet.carried->row = [](int row) { return row == 3 ? BookRow::Opening : BookRow::Added; };
    pages = break_into_pages(sheet, 5);
    EXPECT_EQ(pages[0].out, SumsSoFar()) << "nothing since the total: no sum to show";
    sheet.carried->row = [](int row) { return row == 1 ? BookRow::Neutral : BookRow::Added; };
    EXPECT_EQ(sum(break_into_pages(sheet, 5)[0].out), Amount::from_whole(1 + 3 + 4));
}

TEST(TablePages, an_account_begins_a_page_and_carries_nothing_from_the_one_before) {
    Sheet sheet = list_of(8, false);
    sheet.carried = CarriedSums{.added = {"J"}};
    sheet.carried->begins_account = [](int row) { return row == 0 || row == 2; };
    const auto pages = break_into_pages(sheet, 5);
    EXPECT_EQ(counts(pages), (std::vector<int>{2, 4, 2}));
    EXPECT_FALSE(pages[0].carried_out);
    EXPECT_FALSE(pages[1].carried_in);
    EXPECT_EQ(sum(pages[1].out), Amount::from_whole(3 + 4 + 5 + 6));
}

// Accounts of three rows each, one below the other: a page that ends with an account carries
// nothing, one that ends inside an account carries that account's sum alone.
TEST(TablePages, accounts_that_share_a_page_carry_their_own_sums) {
    Sheet sheet = list_of(12, false);
    sheet.carried = CarriedSums{.added = {"J"}};
    sheet.carried->a_page_each = false;
    sheet.carried->begins_account = [](int row) { return row % 3 == 0; };
    auto pages = break_into_pages(sheet, 6);
    EXPECT_EQ(counts(pages), (std::vector<int>{6, 6}));
    EXPECT_FALSE(pages[0].carried_out || pages[1].carried_in);
    pages = break_into_pages(sheet, 5);
    EXPECT_EQ(pages[0].count, 4); // rows 1 to 3, and 4 of the second account
    EXPECT_EQ(sum(pages[0].out), Amount::from_whole(4));
    EXPECT_EQ(pages[1].in, pages[0].out);
}

} // namespace host
