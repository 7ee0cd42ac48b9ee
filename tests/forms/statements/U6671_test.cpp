// The balance sheet: its words, its passes, its statements, its two grids.
#include "tests/forms/statements/statement_desk.h"

#include "tests/forms/small_books.h"

namespace tests {
namespace {

class BalanceSheet : public StatementDesk {
protected:
    BalanceSheet()
        : StatementDesk(671, "SELECT * FROM D6830 WHERE G=",
                        {"ID int", "A1 text", "A2 text", "A3 text", "A4 text", "A5 text", "A6 text",
                         "B1 text", "B2 text", "B3 text", "B4 text", "B5 text", "B6 text"}) {}
    // A line of the left half.
    static FakeData::Cells left(const std::string& id, const std::string& item,
                                const std::string& beginning, const std::string& closing) {
        return {id,       item,     id,       "<null>", "<null>", beginning, closing,
                "<null>", "<null>", "<null>", "<null>", "<null>", "<null>"};
    }
    void two_halves() {
        show_lines({{"1", "流动资产：", "", "<null>", "<null>", "", "", "流动负债：", "", "<null>",
                     "<null>", "", ""},
                    {"2", " 货币资金", "1", "7.00", "8.00", "fasc(年初,'1001','1009')",
                     "fasc(期末,'1001','1009')", " 短期借款", "68", "9.00", "<null>",
                     "fasc(年初,'2101','2101')", "fasc(期末,'2101','2101')"}});
    }
};

const std::string period_query = "SELECT id,param  FROM d6600 where id=2";
const std::string lines_query = "SELECT * FROM D6830 WHERE G=1";
const std::string clear_blanks = "UPDATE D6830 SET A3 = NULL WHERE (RTRIM(LTRIM(A3)) = '');"
                                 "UPDATE D6830 SET A4 = NULL WHERE (RTRIM(LTRIM(A4)) = '');"
                                 "UPDATE D6830 SET B3 = NULL WHERE (RTRIM(LTRIM(B3)) = '');"
                                 "UPDATE D6830 SET B4 = NULL WHERE (RTRIM(LTRIM(B4)) = '');";

// ---- printing ----

TEST_F(BalanceSheet, is_printed_as_it_stands_under_its_period) {
    two_halves();
    const PrintedPaper paper = person().print();
    EXPECT_EQ(paper.title, "资产负债表");
    EXPECT_TRUE(paper.says("会计期间：2016-06"));
    EXPECT_TRUE(paper.says("资产") && paper.says("年初数") && !paper.says("A"));
    EXPECT_TRUE(paper.says("单位负责人："));
    EXPECT_EQ(paper.line_of(" 货币资金"),
              (std::vector<std::string>{" 货币资金", "1", "7.00", "8.00", " 短期借款", "68",
                                        "9.00"}));
    person().check("rb2");
    EXPECT_TRUE(person().print().says("fasc(年初,'1001','1009')"));
}

// ---- opening ----

TEST_F(BalanceSheet, opens_with_the_first_layout_at_the_current_period) {
    two_halves();
    Person& anna = person();
    EXPECT_EQ(anna.caption(), "资产负债表");
    EXPECT_EQ(anna.sent_texts(), (std::vector<std::string>{lines_query, period_query}));
    EXPECT_EQ(anna.value("Edit1"), "2016-06");
    EXPECT_EQ(anna.value("CB1"), "样式1");
    EXPECT_TRUE(anna.checked("rb1"));
    EXPECT_EQ(anna.row_count(), 2);
    EXPECT_FALSE(anna.visible("Act_Add"));
    EXPECT_FALSE(anna.visible("Act_Delete"));
    EXPECT_EQ(anna.control("Act_Other").at("caption"), "重算");
    EXPECT_TRUE(anna.visible("Act_Other"));
    EXPECT_TRUE(anna.enabled("Act_Other"));
}

TEST_F(BalanceSheet, without_a_current_period_it_says_so_and_still_shows_its_lines) {
    answer_current_period(data, "");
    two_halves();
    Person& anna = person();
    EXPECT_EQ(anna.value("LA4"), "读取会计期间错误!请确认是否进行初始建帐!");
    EXPECT_EQ(anna.value("Edit1"), "");
    EXPECT_EQ(anna.row_count(), 2);
    anna.set("Edit1", "2015-12");
    EXPECT_EQ(recalculated().at(1), "select dbo.fasc(0,'2015-12','1001','1009') as a ");
}

TEST_F(BalanceSheet, amounts_and_formulas_stand_under_the_same_titles) {
    EXPECT_EQ(titles("DBGridEh"), "A1 A|资产\nA2 B|行次\nA3 C|年初数\nA4 D|期末数\n"
                                  "B1 E|负债及所有者权益\nB2 F|行次\nB3 G|年初数\nB4 H|期末数\n");
    EXPECT_EQ(titles("DBGridEh1"), "A1 A|资产\nA2 B|行次\nA5 C|年初数\nA6 D|期末数\n"
                                   "B1 E|负债及所有者权益\nB2 F|行次\nB5 G|年初数\nB6 H|期末数\n");
}

// ---- the words of formulas ----

TEST_F(BalanceSheet, every_word_becomes_its_kind_and_period) {
    struct Word {
        const char* written;
        const char* sent;
    };
    const Word words[] = {
        {"年初", "1,'2016-00'"},          {"期末", "0,'2016-06'"},
        {"本期借方累计", "2,'2016-06'"},  {"本期贷方累计", "3,'2016-06'"},
        {"本年借方累计", "2,'2016-06'"},  {"本年贷方累计", "3,'2016-06'"},
        {"借方期初余额", "5,'2016-06'"},  {"贷方期初余额", "6,'2016-06'"},
        {"fsum(", "dbo.fsum(1,"},         {"fd(", "dbo.fd(1,"},
        {"fasc(", "dbo.fasc("},           {"fsy(1)", "fsy(1)"},
        {"本期累计借方", "本期累计借方"}, {"FASC(1)*2.5", "FASC(1)*2.5"},
    };
    for (const Word& word : words)
        EXPECT_EQ(sent_for(word.written), "select " + std::string(word.sent) + " as a ");
}

TEST_F(BalanceSheet, the_year_to_date_reads_as_the_period) {
    EXPECT_EQ(sent_for("fasc(本年借方累计,'1','2')"), sent_for("fasc(本期借方累计,'1','2')"));
    EXPECT_EQ(sent_for("fasc(本年贷方累计,'1','2')"), sent_for("fasc(本期贷方累计,'1','2')"));
}

TEST_F(BalanceSheet, functions_of_the_ledger_know_no_layout) {
    show_formula("fasc(期末,'1001','1009')");
    person().set("CB1", "样式2");
    EXPECT_EQ(recalculated(),
              std::vector<std::string>{"select dbo.fasc(0,'2016-06','1001','1009') as a "});
}

TEST_F(BalanceSheet, functions_of_lines_name_the_layout_and_run_in_the_later_passes) {
    show_formula("fsum(期末,1,5)");
    person().set("CB1", "样式3");
    EXPECT_EQ(recalculated(),
              std::vector<std::string>(5, "select dbo.fsum(3,0,'2016-06',1,5) as a "));
}

TEST_F(BalanceSheet, a_formula_of_both_runs_in_the_later_passes_only) {
    show_formula("fasc(期末,'1','2')+fsum(期末,1,5)");
    EXPECT_EQ(recalculated().size(), 5U);
}

TEST_F(BalanceSheet, words_are_replaced_everywhere_and_in_what_was_replaced_before) {
    EXPECT_EQ(sent_for("年初+年初"), "select 1,'2016-00'+1,'2016-00' as a ");
    // The user's own prefix is doubled, which the database then refuses.
    EXPECT_EQ(sent_for("dbo.fsum(期末,1,2)"), "select dbo.dbo.fsum(1,0,'2016-06',1,2) as a ");
    EXPECT_EQ(sent_for("fasc(0,'年初','x')"), "select dbo.fasc(0,'1,'2016-00'','x') as a ");
}

TEST_F(BalanceSheet, the_period_is_taken_as_typed) {
    show_formula("年初+期末");
    Person& anna = person();
    anna.set("Edit1", "2016");
    EXPECT_EQ(recalculated().front(), "select 1,'201600'+0,'2016' as a ");
    anna.set("Edit1", "二零一六年五月");
    EXPECT_EQ(recalculated().front(), "select 1,'二零一六年00'+0,'二零一六年五月' as a ");
    anna.set("Edit1", "x';--");
    EXPECT_EQ(recalculated().front(), "select 1,'x'';--00'+0,'x'';--' as a ");
}

// ---- recalculating ----

TEST_F(BalanceSheet, a_recalculation_saves_and_reads_the_lines_after_each_of_six_passes) {
    show_lines({left("1", " 货币资金", "fasc(年初,'1001','1009')", "fasc(期末,'1001','1009')"),
                left("2", "合计", "", "fd(期末,1)")});
    Person& anna = person();
    anna.mark();
    anna.click("Act_Other");
    std::vector<std::string> expected = {
        period_query,
        "select dbo.fasc(1,'2016-00','1001','1009') as a ",
        "select dbo.fasc(0,'2016-06','1001','1009') as a ",
        "D6830 UPDATE D6830 SET A3='12345.50',A4='12345.50' WHERE ID=1;",
        clear_blanks,
        lines_query,
    };
    for (int pass = 1; pass <= 5; ++pass) {
        expected.push_back("select dbo.fd(1,0,'2016-06',1) as a ");
        expected.push_back("D6830 UPDATE D6830 SET A4='12345.50' WHERE ID=2;");
        expected.push_back(clear_blanks);
        expected.push_back(lines_query);
    }
    EXPECT_EQ(anna.sent_texts(), expected);
    for (const host::SentStatement& one : anna.sent()) EXPECT_EQ(one.function, "671");
}

TEST_F(BalanceSheet, the_cells_of_a_line_are_reckoned_from_left_to_right) {
    show_lines({{"1", "a", "1", "<null>", "<null>", "11", "12", "b", "2", "<null>", "<null>", "13",
                 "14"}});
    EXPECT_EQ(recalculated(), (std::vector<std::string>{"select 11 as a ", "select 12 as a ",
                                                        "select 13 as a ", "select 14 as a "}));
    EXPECT_EQ(data.executed().front().batch, "UPDATE D6830 SET A3='12345.50',A4='12345.50',"
                                             "B3='12345.50',B4='12345.50' WHERE ID=1;");
}

TEST_F(BalanceSheet, amounts_have_two_decimals_and_nothing_is_zero) {
    struct Result {
        const char* answered;
        const char* kept;
    };
    const Result results[] = {{"12345.5", "12345.50"},   {"-0.5", "-0.50"},
                              {"<null>", "0.00"},        {"0", "0.00"},
                              {"1234567", "1234567.00"}, {"0.125", "0.13"},
                              {"-0.125", "-0.13"},       {"2.34499", "2.34"},
                              {"0.00499999", "0.00"},    {"-1.0049999", "-1.00"}};
    for (const Result& result : results) {
        leave();
        data.answer("select ", {"a money"}, {{result.answered}});
        show_formula("期末");
        recalculated();
        EXPECT_EQ(data.executed()[data.executed().size() - 2].batch,
                  "UPDATE D6830 SET A4='" + std::string(result.kept) + "' WHERE ID=1;");
    }
}

TEST_F(BalanceSheet, an_empty_formula_leaves_its_amount_even_when_it_is_stale) {
    show_lines({{"1", "a", "1", "5.00", "6.00", "", "<null>", "b", "2", "7.00", "8.00", " ", ""}});
    EXPECT_TRUE(recalculated().empty());
    EXPECT_TRUE(data.executed().empty()); // nothing changed, nothing saved
    const Row line = person().rows().front();
    EXPECT_EQ(line.at("A3"), "5.00");
    EXPECT_EQ(line.at("B4"), "8.00");
}

TEST_F(BalanceSheet, a_formula_the_database_refuses_stops_at_its_cell) {
    show_lines({left("1", " 货币资金", "", "1"), left("2", " 应收帐款", "", "fasc((期末")});
    data.answer("select 1", {"a money"}, {{"12345.5"}});
    data.answer("select ", {"a text"}, {{"没有这个数"}});
    Person& anna = person();
    anna.click("Act_Other");
    anna.expect_message(
        "重算停在第 2 行“应收帐款”的“D 期末数”,这个公式不能计算,请改正后再执行重算:\n"
        "fasc((期末\n结果“没有这个数”不是数字!");
    EXPECT_TRUE(data.executed().empty());
    EXPECT_EQ(anna.rows()[0].at("A4"), "12345.50"); // kept for the next save
    EXPECT_EQ(anna.value("LA4"), "fasc((期末");
    EXPECT_EQ(anna.value("CellName"), "D2");
    anna.click("Act_Save");
    EXPECT_EQ(data.executed()[0].batch, "UPDATE D6830 SET A4='12345.50' WHERE ID=1;");
    EXPECT_EQ(last_batch(), clear_blanks);
}

TEST_F(BalanceSheet, a_save_the_books_refuse_ends_the_recalculation) {
    show_formula("期末");
    data.refuse_next_batch("磁盘空间不足");
    Person& anna = person();
    anna.mark();
    anna.click("Act_Other");
    anna.expect_message("磁盘空间不足");
    EXPECT_EQ(anna.sent().back().call, "ApplyUpdate");
    EXPECT_TRUE(data.executed().empty());
}

// ---- looking ----

TEST_F(BalanceSheet, the_formula_of_the_selected_amount_is_shown) {
    two_halves();
    Person& anna = person();
    const auto shown = [&](int row, const std::string& field) {
        select(row, field);
        return anna.value("LA4");
    };
    EXPECT_EQ(shown(1, "A3"), "fasc(年初,'1001','1009')");
    EXPECT_EQ(shown(1, "A4"), "fasc(期末,'1001','1009')");
    EXPECT_EQ(shown(1, "B3"), "fasc(年初,'2101','2101')");
    EXPECT_EQ(shown(1, "B4"), "fasc(期末,'2101','2101')");
    EXPECT_EQ(anna.value("CellName"), "H2");
    EXPECT_EQ(anna.value("CellItem"), "短期借款 · 期末数");
    EXPECT_EQ(shown(1, "A1"), "");
    EXPECT_EQ(shown(1, "B2"), "");
    EXPECT_EQ(shown(0, "A3"), "");
    anna.row(1);
    EXPECT_EQ(anna.value("LA4"), "fasc(年初,'1001','1009')");
}

TEST_F(BalanceSheet, items_at_the_margin_are_blue) {
    two_halves();
    Person& anna = person();
    EXPECT_EQ(anna.colors(0).at("A1").at("font"), 0xFF0000);
    EXPECT_EQ(anna.colors(0).at("B1").at("font"), 0xFF0000);
    EXPECT_EQ(anna.colors(0).size(), 2U);
    EXPECT_TRUE(anna.colors(1).is_null());
}

TEST_F(BalanceSheet, amounts_and_formulas_take_turns) {
    two_halves();
    Person& anna = person();
    EXPECT_TRUE(anna.visible("DBGridEh"));
    EXPECT_FALSE(anna.visible("DBGridEh1"));
    anna.cannot_cell(1, "A4", "1");
    anna.check("rb2");
    EXPECT_FALSE(anna.visible("DBGridEh"));
    EXPECT_TRUE(anna.visible("DBGridEh1"));
    EXPECT_EQ(anna.rows("DBGridEh1")[1].at("A6"), "fasc(期末,'1001','1009')");
    anna.check("rb1");
    EXPECT_TRUE(anna.visible("DBGridEh"));
}

TEST_F(BalanceSheet, the_layout_box_offers_three_layouts) {
    Person& anna = person();
    EXPECT_EQ(anna.control("CB1").at("items"), nlohmann::json({"样式1", "样式2", "样式3"}));
    anna.mark();
    anna.set("CB1", "样式2");
    anna.set("CB1", "样式3");
    EXPECT_EQ(anna.sent_texts(), (std::vector<std::string>{"SELECT * FROM D6830 WHERE G=2",
                                                           "SELECT * FROM D6830 WHERE G=3"}));
}

TEST_F(BalanceSheet, the_layout_shown_is_read_anew_when_it_is_chosen_again) {
    Person& anna = person();
    anna.mark();
    anna.set("CB1", "样式1");
    anna.set("CB1", "样式3");
    anna.set("CB1", "样式3");
    EXPECT_EQ(anna.sent_texts(), (std::vector<std::string>{"SELECT * FROM D6830 WHERE G=1",
                                                           "SELECT * FROM D6830 WHERE G=3",
                                                           "SELECT * FROM D6830 WHERE G=3"}));
}

// ---- changing formulas ----

TEST_F(BalanceSheet, a_formula_is_changed_in_place_and_saved_without_being_reckoned) {
    two_halves();
    Person& anna = person();
    anna.check("rb2");
    anna.cell(1, "A6", "fasc(期末,'1001','1002')", "DBGridEh1");
    EXPECT_EQ(anna.value("LA4"), "fasc(期末,'1001','1002')");
    EXPECT_TRUE(data.executed().empty());
    anna.mark();
    anna.click("Act_Save");
    EXPECT_EQ(
        anna.sent_texts(),
        (std::vector<std::string>{
            "D6830 UPDATE D6830 SET A6='fasc(期末,''1001'',''1002'')' WHERE ID=2;", clear_blanks}));
    anna.mark();
    anna.click("Act_Save");
    EXPECT_TRUE(anna.sent_texts().empty()); // nothing is pending
}

TEST_F(BalanceSheet, lines_are_neither_added_nor_deleted) {
    two_halves();
    Person& anna = person();
    anna.check("rb2");
    anna.cannot_cell(2, "A6", "1", "DBGridEh1");
    anna.key("Insert");
    anna.key("Ctrl+Delete");
    EXPECT_EQ(anna.row_count("DBGridEh1"), 2);
}

TEST_F(BalanceSheet, changed_formulas_are_reckoned_and_saved_with_the_first_pass) {
    two_halves();
    Person& anna = person();
    anna.check("rb2");
    anna.cell(1, "B6", "7", "DBGridEh1");
    anna.mark();
    anna.click("Act_Other");
    const auto sent = anna.sent_texts();
    EXPECT_EQ(sent.at(4), "select 7 as a ");
    EXPECT_EQ(sent.at(5), "D6830 UPDATE D6830 SET A3='12345.50',A4='12345.50',B3='12345.50',"
                          "B4='12345.50',B6='7' WHERE ID=2;");
}

TEST_F(BalanceSheet, another_layout_asks_before_changes_are_lost) {
    two_halves();
    Person& anna = person();
    anna.check("rb2");
    anna.cell(1, "A6", "1", "DBGridEh1");
    anna.mark();
    anna.set("CB1", "样式2");
    anna.expect_question("刷新会放弃尚未保存的修改，确定要刷新吗？");
    EXPECT_EQ(anna.value("CB1"), "样式1");
    EXPECT_TRUE(anna.sent_texts().empty());
    EXPECT_EQ(anna.rows("DBGridEh1")[1].at("A6"), "1");
    anna.answer_next(true);
    anna.set("CB1", "样式2");
    anna.expect_question("刷新会放弃尚未保存的修改，确定要刷新吗？");
    EXPECT_EQ(anna.sent_texts().back(), "SELECT * FROM D6830 WHERE G=2");
    EXPECT_EQ(anna.rows("DBGridEh1")[1].at("A6"), "fasc(期末,'1001','1009')");
}

TEST_F(BalanceSheet, who_may_not_change_may_look) {
    two_halves();
    PersonOptions reader;
    reader.may = [](const host::Right& right) { return right.action != "change"; };
    Person bert(data, reader);
    bert.open(671);
    EXPECT_EQ(bert.row_count(), 2);
    bert.check("rb2");
    bert.cannot_cell(1, "A6", "1", "DBGridEh1");
    bert.request({{"op", "click"}, {"control", "Act_Other"}});
    EXPECT_TRUE(data.executed().empty());
}

} // namespace
} // namespace tests
