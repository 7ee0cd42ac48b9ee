// The cash flow statement: one layout, one pass, its own words.
#include "tests/forms/statements/statement_desk.h"

namespace tests {
namespace {

class CashFlow : public StatementDesk {
protected:
    CashFlow()
        : StatementDesk(
              672, "SELECT * FROM D6831 ",
              {"ID int", "A1 text", "A2 text", "A3 text", "A4 text", "A5 text", "A6 text"}) {}
};

const std::string clear_blanks = "UPDATE D6831 SET A3 = NULL WHERE (RTRIM(LTRIM(A3)) = '');"
                                 "UPDATE D6830 SET A4 = NULL WHERE (RTRIM(LTRIM(A4)) = '');";

TEST_F(CashFlow, opens_at_2016_06_whatever_the_current_period_is) {
    data.answer("SELECT id,param  FROM d6600 where id=2", {"id int", "param text"},
                {{"2", "2024-03"}});
    Person& anna = person();
    EXPECT_EQ(anna.caption(), "现金流量表");
    EXPECT_EQ(anna.sent_texts(), std::vector<std::string>{"SELECT * FROM D6831 "});
    EXPECT_EQ(anna.value("Edit1"), "2016-06");
    EXPECT_EQ(anna.value("LA4"), "-");
    EXPECT_EQ(anna.value("CurrentPeriod"), "请录入要看的期间,再重算");
    anna.click("Act_Other");
    EXPECT_EQ(anna.value("Edit1"), "2016-06");
    EXPECT_EQ(anna.value("CurrentPeriod"), "当前会计期间 2024-03");
}

TEST_F(CashFlow, has_one_layout) {
    const nlohmann::json answer = person().request({{"op", "controls"}});
    for (const auto& control : answer.at("controls")) EXPECT_NE(control.at("name"), "CB1");
}

TEST_F(CashFlow, keeps_the_titles_of_its_screen) {
    EXPECT_EQ(titles("DBGridEh"), "A1 A|资产\nA2 B|行次\nA3 C|本年累计金额\nA4 D|本月金额\n");
    EXPECT_EQ(titles("DBGridEh1"), "A1 A|资产\nA2 B|行次\nA5 C|本年累计金额\nA6 D|本月金额\n");
}

TEST_F(CashFlow, every_word_becomes_its_kind_and_period) {
    struct Word {
        const char* written;
        const char* sent;
    };
    const Word words[] = {
        {"年初", "1,'2016-00'"},          {"期末", "0,'2016-06'"},
        {"本期累计借方", "2,'2016-06'"},  {"本期累计贷方", "3,'2016-06'"},
        {"本期借方累计", "本期借方累计"}, {"本年贷方累计", "本年贷方累计"},
        {"fsum(1)", "fsum(1)"},           {"dbo.fxj(1)", "dbo.fxj(1)"},
    };
    for (const Word& word : words)
        EXPECT_EQ(sent_for(word.written), "select " + std::string(word.sent) + " as a ");
}

TEST_F(CashFlow, every_formula_is_reckoned_once_from_left_to_right) {
    show_lines({{"1", "a", "1", "<null>", "<null>", "dbo.fxjn(本期累计借方,'1','2')",
                 "dbo.fxj(本期累计借方,'1','2')"},
                {"2", "b", "2", "<null>", "<null>", "", "dbo.fd(1,期末,1)"}});
    Person& anna = person();
    anna.set("Edit1", "2024-03");
    anna.mark();
    anna.click("Act_Other");
    EXPECT_EQ(anna.sent_texts(), (std::vector<std::string>{
                                     "SELECT id,param  FROM d6600 where id=2",
                                     "select dbo.fxjn(2,'2024-03','1','2') as a ",
                                     "select dbo.fxj(2,'2024-03','1','2') as a ",
                                     "select dbo.fd(1,0,'2024-03',1) as a ",
                                     "D6831 UPDATE D6831 SET A3='12345.5',A4='12345.5' WHERE ID=1;"
                                     "UPDATE D6831 SET A4='12345.5' WHERE ID=2;",
                                     clear_blanks,
                                     "SELECT * FROM D6831 ",
                                 }));
}

TEST_F(CashFlow, amounts_are_kept_in_their_shortest_form) {
    struct Result {
        const char* answered;
        const char* kept;
    };
    const Result results[] = {{"2.5", "2.5"},         {"100.00", "100"}, {"-0.07", "-0.07"},
                              {"0", "0"},             {"0.1234", "0.1234"},
                              {"0.333333", "0.333333"}, {"-2.00005", "-2.00005"}};
    for (const Result& result : results) {
        data.answer("select ", {"a money"}, {{result.answered}});
        sent_for("期末");
        EXPECT_EQ(data.executed()[data.executed().size() - 2].batch,
                  "UPDATE D6831 SET A4='" + std::string(result.kept) + "' WHERE ID=1;");
    }
}

TEST_F(CashFlow, nothing_is_kept_as_an_empty_text) {
    data.answer("select ", {"a money"}, {{"<null>"}});
    show_lines({{"1", "a", "1", "5", "6", "1", "2"}});
    recalculated();
    EXPECT_EQ(data.executed().front().batch, "UPDATE D6831 SET A3='',A4='' WHERE ID=1;");
}

TEST_F(CashFlow, the_formula_of_the_selected_amount_is_shown) {
    show_lines({{"1", "a", "1", "1", "2", "year", "month"}});
    select(0, "A3");
    EXPECT_EQ(person().value("LA4"), "year");
    select(0, "A4");
    EXPECT_EQ(person().value("LA4"), "month");
}

} // namespace
} // namespace tests
