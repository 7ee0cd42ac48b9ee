// The income statement, where it differs from the balance sheet.
#include "tests/forms/statements/statement_desk.h"

#include "tests/forms/small_books.h"

namespace tests {
namespace {

class IncomeStatement : public StatementDesk {
protected:
    IncomeStatement()
        : StatementDesk(
              673, "SELECT * FROM D6832",
              {"ID int", "A1 text", "A2 text", "A3 text", "A4 text", "A5 text", "A6 text"}) {}
};

const std::string clear_blanks = "UPDATE D6832 SET A3 = NULL WHERE (RTRIM(LTRIM(A3)) = '');"
                                 "UPDATE D6830 SET A4 = NULL WHERE (RTRIM(LTRIM(A4)) = '');";

TEST_F(IncomeStatement, opens_with_the_first_layout_at_the_current_period) {
    Person& anna = person();
    EXPECT_EQ(anna.caption(), "利 润 表");
    EXPECT_EQ(anna.sent_texts(),
              (std::vector<std::string>{"SELECT * FROM D6832  WHERE G=1",
                                        "SELECT id,param  FROM d6600 where id=2"}));
    EXPECT_EQ(anna.value("Edit1"), "2016-06");
    anna.mark();
    anna.set("CB1", "样式2");
    anna.set("CB1", "样式1");
    anna.set("CB1", "样式1"); // asked for again, without the blank of the opening
    EXPECT_EQ(anna.sent_texts(), (std::vector<std::string>{"SELECT * FROM D6832 WHERE G=2",
                                                           "SELECT * FROM D6832 WHERE G=1",
                                                           "SELECT * FROM D6832 WHERE G=1"}));
}

TEST_F(IncomeStatement, without_a_current_period_it_says_so) {
    answer_current_period(data, "");
    EXPECT_EQ(person().value("LA4"), "读取会计期间错误!请确认是否进行初始建帐!");
}

TEST_F(IncomeStatement, keeps_the_titles_of_its_screen) {
    EXPECT_EQ(titles("DBGridEh"), "A1 A|资产\nA2 B|行次\nA3 C|本月金额\nA4 D|本年累计金额\n");
    EXPECT_EQ(titles("DBGridEh1"), "A1 A|资产\nA2 B|行次\nA5 C|本月累计金额\nA6 D|本年金额\n");
}

TEST_F(IncomeStatement, every_word_becomes_its_kind_and_period) {
    struct Word {
        const char* written;
        const char* sent;
    };
    const Word words[] = {
        {"年初", "1,'2016-00'"},
        {"期末", "0,'2016-06'"},
        {"本期借方累计", "2,'2016-06'"},
        {"本期贷方累计", "3,'2016-06'"},
        {"本年借方累计", "4,'2016-06'"},
        {"本年贷方累计", "5,'2016-06'"},
        {"借方期初余额", "借方期初余额"},
        {"贷方期初余额", "贷方期初余额"},
        {"fsum(", "dbo.fsum3(1,"},
        {"fd(", "dbo.fd3(1,"},
        {"fsy(", "dbo.fsy("},
        {"fasc(", "fasc("},
    };
    for (const Word& word : words)
        EXPECT_EQ(sent_for(word.written), "select " + std::string(word.sent) + " as a ");
}

TEST_F(IncomeStatement, the_ledger_function_of_the_balance_sheet_is_no_word_here) {
    EXPECT_EQ(sent_for("fasc(期末,'1001','1001')"), "select fasc(0,'2016-06','1001','1001') as a ");
}

TEST_F(IncomeStatement, profit_and_loss_runs_first_and_what_looks_at_lines_later) {
    show_formula("fsy(本年贷方累计,'5101','5101')");
    EXPECT_EQ(recalculated(),
              std::vector<std::string>{"select dbo.fsy(5,'2016-06','5101','5101') as a "});
    leave();
    show_formula("fsy(本年贷方累计,'5101','5101')-fd(本年借方累计,4)");
    person().set("CB1", "样式2");
    EXPECT_EQ(recalculated(),
              std::vector<std::string>(
                  5, "select dbo.fsy(5,'2016-06','5101','5101')-dbo.fd3(2,4,'2016-06',4) as a "));
}

TEST_F(IncomeStatement, saving_clears_blanks_of_its_own_month_and_of_the_balance_sheet) {
    show_lines({{"1", "一、主营业务收入", "1", "", "", "1", "2"}});
    Person& anna = person();
    anna.mark();
    anna.click("Act_Other");
    const auto sent = anna.sent();
    EXPECT_EQ(sent.at(3).text, "D6832 UPDATE D6832 SET A3='12345.50',A4='12345.50' WHERE ID=1;");
    EXPECT_EQ(sent.at(4).call, "ExecSql");
    EXPECT_EQ(sent.at(4).function, "673");
    EXPECT_EQ(sent.at(4).text, clear_blanks);
    EXPECT_EQ(sent.back().text, "SELECT * FROM D6832  WHERE G=1");
}

TEST_F(IncomeStatement, the_formula_of_the_selected_amount_is_shown) {
    show_lines({{"1", "一、主营业务收入", "1", "1.00", "2.00", "month", "year"}});
    select(0, "A3");
    EXPECT_EQ(person().value("LA4"), "month");
    select(0, "A4");
    EXPECT_EQ(person().value("LA4"), "year");
    select(0, "A1");
    EXPECT_EQ(person().value("LA4"), "");
}

} // namespace
} // namespace tests
