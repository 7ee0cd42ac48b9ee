// A sheet on paper: what is written where.
#include "host/printing/table_document.h"

#include <gtest/gtest.h>

#include "host/printing/table_lines.h"

namespace host {

namespace {

const PaperWords words = {"示例公司", "李敏", "2024-03-15 09:00"};

Sheet trial_balance(int rows) {
    Sheet sheet;
    sheet.title = "试算平衡表";
    sheet.conditions = {"会计期间: 2024-03"};
    sheet.columns = {{.field = "KM_ID", .title = "科目", .width = 12},
                     {.field = "KM_NAME", .title = "会计科目", .width = -1}};
    for (const char* side : {"期初余额|借方", "期初余额|贷方"})
        sheet.columns.push_back({.title = side, .width = 14, .align = Alignment::Right,
                                 .amount = true, .format = "0.00"});
    sheet.rows = rows;
    sheet.cell = [](int row, int column) {
        if (column < 2) return SheetCell{Value{std::string("甲")}, "甲" + std::to_string(row)};
        const Amount amount = *Amount::parse(column == 2 ? "-1234567.5" : "0");
        return SheetCell{Value{amount}, amount.to_text(), amount.is_negative()};
    };
    return sheet;
}

const PaperText* find(const PaperPage& page, const std::string& text) {
    for (const PaperText& one : page.texts)
        if (one.text == text) return &one;
    return nullptr;
}

} // namespace

TEST(TableDocument, title_company_conditions_and_page_numbers_stand_on_every_page) {
    const TableDocument document(trial_balance(100), words);
    ASSERT_GT(document.page_count(), 1);
    const std::string count = std::to_string(document.page_count());
    for (int i = 0; i < document.page_count(); ++i) {
        const PaperPage page = document.page(i);
        for (const std::string& text :
             {std::string("试算平衡表"), std::string("单位：示例公司"),
              std::string("金额单位：元"), std::string("会计期间: 2024-03"),
              std::string("制表：李敏"), std::string("打印 2024-03-15 09:00"),
              "第 " + std::to_string(i + 1) + " 页  共 " + count + " 页"})
            EXPECT_NE(find(page, text), nullptr) << text;
    }
}

TEST(TableDocument, a_grouped_title_stands_over_its_columns) {
    const PaperPage page = TableDocument(trial_balance(1), words).page(0);
    const PaperText* group = find(page, "期初余额");
    const PaperText* debit = find(page, "借方");
    const PaperText* credit = find(page, "贷方");
    const PaperText* account = find(page, "科目");
    ASSERT_TRUE(group && debit && credit && account);
    EXPECT_LT(group->box.top, debit->box.top);
    EXPECT_LE(group->box.left, debit->box.left);
    EXPECT_GE(group->box.right(), credit->box.right());
    EXPECT_EQ(account->box.height, group->box.height + debit->box.height);
    EXPECT_EQ(std::count_if(page.texts.begin(), page.texts.end(),
                            [](const PaperText& text) { return text.text == "期初余额"; }),
              1);
}

TEST(TableDocument, money_has_its_thousands_parted_negative_red_zero_pale) {
    const PaperPage page = TableDocument(trial_balance(1), words).page(0);
    const PaperText* negative = find(page, "-1,234,567.50");
    const PaperText* zero = find(page, "0.00");
    ASSERT_TRUE(negative && zero);
    EXPECT_EQ(negative->ink, Ink::Red);
    EXPECT_EQ(zero->ink, Ink::Pale);
    EXPECT_EQ(negative->align, Alignment::Right);
}

TEST(TableDocument, nothing_stands_outside_the_paper) {
    const TableDocument document(trial_balance(90), words);
    const PaperSize paper = document.size();
    for (int i = 0; i < document.page_count(); ++i) {
        const PaperPage page = document.page(i);
        for (const PaperText& text : page.texts) {
            EXPECT_GE(text.box.left, 0);
            EXPECT_GE(text.box.width, 0);
            EXPECT_LE(text.box.right(), paper.width);
            EXPECT_LE(text.box.bottom(), paper.height) << text.text;
        }
        for (const PaperLine& line : page.lines)
            EXPECT_LE(std::max(line.y1, line.y2), paper.height - 1500);
    }
}

TEST(TableDocument, a_wide_list_lies_across_and_a_wider_one_is_set_smaller) {
    Sheet sheet = trial_balance(1);
    EXPECT_EQ(TableDocument(sheet, words).size().width, 21000);
    for (int i = 0; i < 4; ++i) sheet.columns.push_back({.title = "列", .width = 14});
    EXPECT_EQ(TableDocument(sheet, words).size().width, 29700);
    EXPECT_EQ(columns_on_paper(sheet).size, 90);
    for (int i = 0; i < 4; ++i) sheet.columns.push_back({.title = "列", .width = 14});
    const TableColumns columns = columns_on_paper(sheet);
    EXPECT_LT(columns.size, 90);
    EXPECT_EQ(columns.width(), 29700 - 2 * paper_margin) << "the paper is filled";
}

TEST(TableDocument, columns_keep_the_proportions_of_the_screen) {
    Sheet sheet = trial_balance(1);
    sheet.columns[1].width = 30;
    for (std::size_t i = 2; i < 4; ++i) sheet.columns[i].width = 15;
    const TableColumns columns = columns_on_paper(sheet);
    EXPECT_NEAR(columns.widths[2], columns.widths[3], 5); // the last takes what rounding leaves
    EXPECT_GT(columns.widths[1], columns.widths[2]);
    EXPECT_EQ(columns.width(), 21000 - 2 * paper_margin);
}

// 53 lines in eight columns, as a balance sheet has them.
TEST(TableDocument, a_statement_stands_on_one_page_with_its_signatures) {
    Sheet sheet = trial_balance(53);
    for (int half = 0; half < 2; ++half)
        sheet.columns.push_back({.title = "负债", .width = 16, .amount = true});
    EXPECT_GT(TableDocument(sheet, words).page_count(), 1);
    sheet.one_page = true;
    sheet.signatures = {"单位负责人", "制表"};
    const TableDocument document(sheet, words);
    ASSERT_EQ(document.page_count(), 1);
    const PaperPage page = document.page(0);
    const PaperText* last = find(page, "甲52");
    const PaperText* signature = find(page, "单位负责人：");
    const PaperText* foot = find(page, "第 1 页  共 1 页");
    ASSERT_TRUE(last && signature && foot);
    EXPECT_GE(signature->box.top, last->box.bottom());
    EXPECT_LE(signature->box.bottom(), foot->box.top);
    EXPECT_GE(last->size, 55) << "it can still be read";
}

namespace {

Sheet ledger(int rows) {
    Sheet sheet;
    sheet.title = "明细分类帐";
    sheet.columns = {{.field = "ZY", .title = "摘要", .width = -1},
                     {.field = "J", .title = "借方", .width = 14, .amount = true, .format = "0.00"},
                     {.field = "FX", .title = "方向", .width = 6},
                     {.field = "E", .title = "余额", .width = 14, .amount = true}};
    sheet.rows = rows;
    sheet.cell = [](int row, int column) {
        if (column == 0) return SheetCell{Value{std::string("付")}, "付" + std::to_string(row)};
        if (column == 2) return SheetCell{Value{std::string("借")}, "借"};
        const Amount amount = Amount::from_whole(column == 1 ? 1 : 1000 + row);
        return SheetCell{Value{amount}, amount.to_text()};
    };
    sheet.carried = CarriedSums{.label = "ZY", .added = {"J"}, .copied = {"FX", "E"}};
    sheet.carried->account = [](int) { return std::string("1001  现金"); };
    return sheet;
}

// Texts of one line of the table, from left to right.
std::vector<std::string> line_of(const PaperPage& page, const std::string& label) {
    std::vector<std::string> texts;
    const PaperText* found = find(page, label);
    for (const PaperText& text : page.texts)
        if (found != nullptr && text.box.top == found->box.top) texts.push_back(text.text);
    return texts;
}

} // namespace

TEST(TableDocument, a_book_closes_its_page_with_the_sum_and_the_balance_and_opens_the_next_so) {
    const TableDocument document(ledger(100), words);
    ASSERT_GE(document.page_count(), 2);
    EXPECT_NE(find(document.page(0), "科目：1001  现金"), nullptr);
    int rows = 0;
    while (find(document.page(0), "付" + std::to_string(rows)) != nullptr) ++rows;
    ASSERT_GT(rows, 10);
    const std::string balance = "1,0" + std::to_string(rows - 1) + ".00"; // of the last row
    EXPECT_EQ(line_of(document.page(0), "过次页"),
              (std::vector<std::string>{"过次页", std::to_string(rows) + ".00", "借", balance}));
    EXPECT_EQ(line_of(document.page(1), "承前页"),
              (std::vector<std::string>{"承前页", std::to_string(rows) + ".00", "借", balance}));
    EXPECT_EQ(find(document.page(0), "承前页"), nullptr);
    EXPECT_EQ(find(document.page(document.page_count() - 1), "过次页"), nullptr);
}

TEST(TableLines, a_flag_is_a_check_mark_and_a_code_is_no_amount) {
    const SheetColumn flag = {.check_box = true};
    EXPECT_EQ(text_on_paper(flag, {Value{true}, "True"}), "√");
    EXPECT_EQ(text_on_paper(flag, {Value{std::int64_t{0}}, "0"}), "");
    EXPECT_EQ(text_on_paper({}, {Value{std::string("1234567")}, "1234567"}), "1234567");
    const SheetColumn money = {.amount = true};
    EXPECT_EQ(text_on_paper(money, {Value{}, "1234"}), "1,234");
    EXPECT_EQ(text_on_paper(money, {Value{}, "-123.45"}), "-123.45");
    EXPECT_EQ(text_on_paper(money, {Value{}, "2024-03"}), "2024-03");
}

} // namespace host
