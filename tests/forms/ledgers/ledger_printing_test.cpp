// Ledgers and lists on paper and as spreadsheets.
#include "tests/forms/form_desk.h"
#include "tests/forms/ledgers/ledger_answers.h"
#include "tests/forms/small_books.h"

namespace tests {
namespace {

class LedgerPrinting : public testing::Test {
protected:
    LedgerPrinting() {
        answer_as_small_books(data);
        answer_detailed_ledger(data);
        answer_general_ledger(data);
        answer_cash_accounts(data);
        data.answer("SELECT param  FROM d6600 where id=2", {"param text"}, {{"2024-03"}});
    }
    Person& at(int code) {
        anna_ = std::make_unique<Person>(data);
        anna_->open(code);
        anna_->click("btn_ok");
        return *anna_;
    }
    // 1001 现金: an opening of 100.00 and `lines` receipts of 1.00.
    void answer_long_ledger(int lines) {
        std::vector<FakeData::Cells> rows = {{"<null>", "<null>", "期初余额", "<null>", "<null>",
                                              "借", "100", "1001", "现金", "-1", "<null>"}};
        for (int i = 1; i <= lines; ++i)
            rows.push_back({"2024-03-05", "记-" + std::to_string(i), "收款" + std::to_string(i),
                            "1", "0", "借", std::to_string(100 + i), "1001", "现金",
                            std::to_string(i), "2024-03记001"});
        data.answer("EXEC SYS_685",
                    {"BDATE date", "PZZ text", "ZY text", "J money", "D money", "FX text",
                     "E money", "KM_ID text", "KM_NAME text", "inx int", "NOID text"},
                    rows);
    }
    FakeData data;

private:
    std::unique_ptr<Person> anna_;
};

TEST_F(LedgerPrinting, each_account_of_a_detailed_ledger_has_its_own_page) {
    const PrintedPaper paper = at(685).print();
    EXPECT_EQ(paper.title, "明细分类帐");
    ASSERT_EQ(paper.pages.size(), 2U);
    EXPECT_TRUE(paper.says("科目：1001  现金", 0));
    EXPECT_TRUE(paper.says("科目：1131  应收帐款-东方", 1));
    EXPECT_TRUE(paper.says("含未过帐凭证", 0)) << "what the list holds is told";
    EXPECT_EQ(paper.line_of("付运费", 0),
              (std::vector<std::string>{"2024-03-06", "记-8", "付运费", "0.00", "700.00", "借",
                                        "-15.00"}));
    EXPECT_FALSE(paper.says("过次页", 0));
}

// The opening is no movement: it enters the balance alone. Each line brings 1.00.
TEST_F(LedgerPrinting, a_full_page_is_carried_over_with_the_month_so_far_and_the_balance) {
    answer_long_ledger(60);
    const PrintedPaper paper = at(685).print();
    ASSERT_EQ(paper.pages.size(), 2U);
    int lines = 0;
    while (paper.says("收款" + std::to_string(lines + 1), 0)) ++lines;
    ASSERT_GT(lines, 20);
    const std::vector<std::string> carried = {"过次页", std::to_string(lines) + ".00", "0.00", "借",
                                              std::to_string(100 + lines) + ".00"};
    EXPECT_EQ(paper.line_of("过次页", 0), carried);
    auto taken_up = carried;
    taken_up[0] = "承前页";
    EXPECT_EQ(paper.line_of("承前页", 1), taken_up);
    EXPECT_TRUE(paper.says("收款" + std::to_string(lines + 1), 1));
    EXPECT_TRUE(paper.says("第 2 页  共 2 页", 1));
}

TEST_F(LedgerPrinting, the_journal_lies_across_for_its_counter_accounts_if_it_must) {
    const PrintedPaper paper = at(690).print();
    EXPECT_EQ(paper.title, "现金,银行存款日记帐");
    EXPECT_TRUE(paper.says("对方科目"));
    EXPECT_TRUE(paper.says("科目：1001  现金"));
}

TEST_F(LedgerPrinting, the_general_ledger_names_accounts_in_its_rows) {
    const PrintedPaper paper = at(686).print();
    ASSERT_EQ(paper.pages.size(), 1U);
    EXPECT_TRUE(paper.says("635.00"));
    EXPECT_FALSE(paper.says("科目：1001  现金"));
}

TEST_F(LedgerPrinting, nothing_to_print_is_said) {
    Person anna(data);
    anna.open(685);
    anna.click("btn_Cancel");
    anna.click("Act_Print");
    anna.expect_message("没有可打印的内容，请先选择查询条件或录入数据!");
}

TEST_F(LedgerPrinting, a_print_needs_a_file_and_tells_so) {
    Person& anna = at(685);
    anna.click("Act_Print");
    anna.expect_message("没有打印：请先用 answer 给出文件名!");
}

TEST_F(LedgerPrinting, an_export_holds_plain_numbers_and_the_account_of_each_line) {
    const std::string sheet = at(685).export_spreadsheet();
    EXPECT_TRUE(
        sheet.starts_with("\xEF\xBB\xBF科目,凭证日期,凭证字,摘要,借方金额,贷方金额,方向,"
                          "余额\r\n"
                          "1001,,,期初余额,,,借,100.00\r\n"
                          "1001,2024-03-05,记-7,收货款,585.00,0.00,借,685.00\r\n"))
        << sheet;
}

class ChartPrinting : public testing::Test {};

TEST_F(ChartPrinting, a_tree_is_printed_and_exported_as_a_list) {
    FakeData data;
    data.answer("SELECT KM_ID,KM_NAME, OID  FROM D6801 where km_fl=1",
                {"KM_ID text", "KM_NAME text", "OID text"},
                {{"1002", "银行存款", "Z"}, {"100201", "工行", "1002"}});
    Person anna(data);
    anna.open(681);
    const PrintedPaper paper = anna.print();
    EXPECT_EQ(paper.line_of("100201"), (std::vector<std::string>{"100201", "　工行", "2"}));
    EXPECT_EQ(anna.export_spreadsheet(),
              "\xEF\xBB\xBF代号,名称,级别\r\n1002,银行存款,1\r\n100201,工行,2\r\n");
}

} // namespace
} // namespace tests
