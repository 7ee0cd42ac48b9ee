// Statements on real books: what is kept of them, and where a recalculation stops.
#include "host/values/sql_text.h"
#include "tests/forms/ledger_desk.h"

namespace tests {
namespace {

class StatementLedger : public LedgerDesk {
protected:
    // Lines of a layout that the template does not use, in the place of the first.
    void define(const std::string& lines) {
        books.execute("DELETE FROM D6830;DELETE FROM D6832;DELETE FROM D6831;" + lines);
    }
    std::string amount(const std::string& field, int id, const std::string& table = "D6830") {
        return books.value("SELECT " + field + " FROM " + table +
                           " WHERE ID=" + std::to_string(id));
    }
    std::string recalculation_stops(int code) {
        anna.open(code);
        anna.click("Act_Other");
        const std::string message = anna.next_message();
        anna.forget_messages();
        return message;
    }
};

TEST_F(StatementLedger, what_is_reckoned_is_kept) {
    new_voucher();
    save_voucher("1001", "3101", "500");
    anna.close();
    audit_all();
    post();
    anna.open(671);
    anna.click("Act_Other");
    EXPECT_EQ(books.value("SELECT A4 FROM D6830 WHERE G=1 AND A2='1'"), "500.00");
    EXPECT_EQ(books.value("SELECT B4 FROM D6830 WHERE G=1 AND B2='135'"), "500.00");
    EXPECT_EQ(books.value("SELECT B3 FROM D6830 WHERE G=1 AND B2='135'"), "0.00");
    EXPECT_EQ(books.value("SELECT A4 FROM D6830 WHERE G=2 AND A2='1'"), "<null>");
}

TEST_F(StatementLedger, totals_of_totals_settle_through_five_levels) {
    define("INSERT INTO D6830 (ID,G,A2,A6) VALUES (1,1,'1','fd(期末,2)'),(2,1,'2','fd(期末,3)'),"
           "(3,1,'3','fd(期末,4)'),(4,1,'4','fd(期末,5)'),(5,1,'5','fd(期末,6)'),"
           "(6,1,'6','fd(期末,7)'),(7,1,'7','100')");
    anna.open(671);
    anna.click("Act_Other");
    EXPECT_EQ(amount("A4", 7), "100.00");
    EXPECT_EQ(amount("A4", 2), "100.00"); // five lines above the constant
    EXPECT_EQ(amount("A4", 1), "0.00");   // the sixth waits for the next recalculation
    anna.click("Act_Other");
    EXPECT_EQ(amount("A4", 1), "100.00");
}

TEST_F(StatementLedger, a_formula_as_long_as_its_field_is_reckoned) {
    std::string formula = "fd(期末,1)";
    for (int i = 1; i < 99; ++i) formula += i % 3 == 0 ? "-fd(期末,1)" : "+fd(期末,1)";
    define("INSERT INTO D6830 (ID,G,A2,A6) VALUES (1,1,'1','0.01'),(2,1,'2','" + formula + "')");
    anna.open(671);
    anna.click("Act_Other");
    EXPECT_EQ(amount("A4", 2), "0.35"); // 67 times more, 32 times less
}

TEST_F(StatementLedger, a_cell_sees_what_the_pass_before_kept) {
    define("INSERT INTO D6830 (ID,G,A2,A4,A6,B2,B6) VALUES "
           "(1,1,'1','7','5','11','fsum(期末,1,2)'),(2,1,'2','8','',NULL,NULL)");
    anna.open(671);
    anna.click("Act_Other");
    EXPECT_EQ(amount("B4", 1), "13.00"); // the new 5 and the 8 that stands there
    EXPECT_EQ(amount("A4", 2), "8");
}

TEST_F(StatementLedger, saving_clears_blank_amounts_of_all_layouts_of_the_balance_sheet) {
    define("INSERT INTO D6830 (ID,G,A3,A4,B3,B4,A6) VALUES (1,1,' ','','  ',' ','1'),"
           "(2,3,'',' ','',' ',NULL)");
    anna.open(671);
    anna.click("Act_Other");
    EXPECT_EQ(amount("A4", 1), "1.00");
    for (const char* field : {"A3", "B3", "B4"}) EXPECT_EQ(amount(field, 1), "<null>") << field;
    for (const char* field : {"A3", "A4", "B3", "B4"})
        EXPECT_EQ(amount(field, 2), "<null>") << field;
}

TEST_F(StatementLedger, saving_the_income_statement_clears_no_blank_year_of_its_own) {
    define("INSERT INTO D6830 (ID,G,A3,A4) VALUES (1,1,' ',' ');"
           "INSERT INTO D6832 (ID,G,A3,A4,A5) VALUES (1,1,'','','1'),(2,1,' ',' ',NULL)");
    anna.open(673);
    anna.click("Act_Other");
    EXPECT_EQ(amount("A3", 1, "D6832"), "1.00");
    EXPECT_EQ(amount("A3", 2, "D6832"), "<null>");
    EXPECT_NE(amount("A4", 2, "D6832"), "<null>");
    EXPECT_EQ(amount("A4", 1), "<null>");
    EXPECT_NE(amount("A3", 1), "<null>");
}

TEST_F(StatementLedger, nothing_in_the_cash_flow_becomes_null_in_the_year_and_blank_in_the_month) {
    define("INSERT INTO D6831 (ID,A3,A4,A5,A6) VALUES (1,'5','6','NULL','NULL'),"
           "(2,NULL,NULL,'2.5','2.50*2')");
    anna.open(672);
    anna.click("Act_Other");
    EXPECT_EQ(amount("A3", 1, "D6831"), "<null>");
    EXPECT_EQ(amount("A4", 1, "D6831"), "");
    EXPECT_EQ(amount("A3", 2, "D6831"), "2.5");
    EXPECT_EQ(amount("A4", 2, "D6831"), "5");
}

TEST_F(StatementLedger, a_line_of_the_cash_flow_reads_others_as_they_stood_before) {
    define("INSERT INTO D6831 (ID,A2,A4,A6) VALUES (1,'1','7','20'),"
           "(2,'2',NULL,'(SELECT A4 FROM D6831 WHERE ID=1)')");
    anna.open(672);
    anna.click("Act_Other");
    EXPECT_EQ(amount("A4", 2, "D6831"), "7");
    anna.click("Act_Other");
    EXPECT_EQ(amount("A4", 2, "D6831"), "20");
}

TEST_F(StatementLedger, a_wrong_formula_stops_at_its_cell_and_keeps_the_passes_before) {
    define("INSERT INTO D6830 (ID,G,A1,A2,A6,B1,B2,B6) VALUES (1,1,' 现金','1','5','','',NULL),"
           "(2,1,' 存款','2','fd(期末,1)',' 借款','68','fd((期末,1)')");
    const std::string message = recalculation_stops(671);
    EXPECT_EQ(message.substr(0, message.find('\n')),
              "重算停在第 2 行“借款”的“H 期末数”,这个公式不能计算,请改正后再执行重算:");
    EXPECT_NE(message.find("\nfd((期末,1)\n"), std::string::npos) << message;
    EXPECT_EQ(amount("A4", 1), "5.00");   // the first pass was saved
    EXPECT_EQ(amount("A4", 2), "<null>"); // this one was not
    anna.click("Act_Save");
    EXPECT_EQ(amount("A4", 2), "5.00"); // with the next save it is
}

// What the books answer to a formula they cannot reckon: where it stands, what it says, what is
// wrong with it in a sentence.
TEST_F(StatementLedger, a_formula_that_cannot_be_reckoned_says_where_it_stands_and_why) {
    struct Wrong {
        int code;
        const char* table;
        const char* formula;
        const char* reason;
    };
    const char* const shape = "算式或语句的写法不对,请检查括号、逗号和运算符!";
    const char* const unknown = "没有这个函数,请核对函数名!";
    const char* const count = "函数的参数个数不对,请核对!";
    const Wrong formulas[] = {
        {671, "D6830", "fasc(期末,'1001','1001'", shape},
        {671, "D6830", "fasc(期末,'1001','1001'))", shape},
        {671, "D6830", "fasc（期末，'1001'，'1001'）", shape},
        {671, "D6830", "1+", shape},
        {671, "D6830", "1 2", shape},
        {671, "D6830", "'1001", "引号没有成对,请补齐!"},
        {671, "D6830", "fascc(期末,'1001','1001')", unknown},
        {671, "D6830", "FASC(期末,'1001','1001')", unknown},
        {671, "D6830", "fasc (期末,'1001','1001')", unknown},
        {671, "D6830", "dbo.fsum(期末,1,2)", unknown}, // the prefix is doubled
        {673, "D6832", "fasc(期末,'1001','1001')", unknown},
        {671, "D6830", "fasc(期末,'1001')", count},
        {672, "D6831", "dbo.fxj(本期借方累计,'1','2')", count}, // a word of the others
        {671, "D6830", "１２+3", "没有这个名称,请核对写法!"},
        {671, "D6830", "1/0", "计算中出现了除以零,请检查公式或数据!"},
        {671, "D6830", "fasc(期末,'1001','1001')/0", "计算中出现了除以零,请检查公式或数据!"},
        {671, "D6830", "99999999999999999999", "数字太大,超出了可以显示的范围,请核对数据!"},
        {671, "D6830", "'abc'", "结果“abc”不是数字!"},
        {671, "D6830", "CAST('2024-01-01' AS datetime)", "结果“2024-01-01”不是数字!"},
        {671, "D6830", "1 union select 2", "公式只能是一个算式,不能含有“select”!"},
        {671, "D6830", "1 -- 2", "公式只能是一个算式,不能含有“--”!"},
    };
    for (const Wrong& wrong : formulas) {
        const std::string table = wrong.table;
        const bool layouts = table != "D6831";
        define("INSERT INTO " + table + " (ID,A1,A6" + (layouts ? ",G" : "") + ") VALUES (1,'x'," +
               host::quoted(wrong.formula) + (layouts ? ",1" : "") + ")");
        const std::string message = recalculation_stops(wrong.code);
        EXPECT_TRUE(message.starts_with("重算停在第 1 行“x”的“D ")) << message;
        EXPECT_NE(message.find(std::string("\n") + wrong.formula + "\n" + wrong.reason),
                  std::string::npos)
            << message << "\n" << wrong.reason;
        EXPECT_EQ(amount("A4", 1, table), "<null>") << wrong.formula;
        anna.close();
    }
}

// Odd and yet right: what stands between the words does not matter to the books.
TEST_F(StatementLedger, a_formula_may_be_written_loosely) {
    struct Loose {
        const char* formula;
        const char* amount;
    };
    const Loose formulas[] = {{" ( (1 + 2) ) * 3 ", "9.00"},
                              {"fasc( 期末 , '1001' , '1009' )", "0.00"},
                              {"-fasc(期末,'1001','1009')+(1+2)*3", "9.00"},
                              {"CASE WHEN 1>0 THEN 5 END", "5.00"},
                              {"(SELECT COUNT(*) FROM D6830)", "1.00"},
                              {"10/4", "2.00"}, // of whole numbers
                              {"10.0/4", "2.50"},
                              {"1/3.0", "0.33"},
                              {"2.34495*1", "2.34"},
                              {"' 12.5 '", "12.50"},
                              {"NULL", "0.00"}};
    for (const Loose& loose : formulas) {
        define("INSERT INTO D6830 (ID,G,A6) VALUES (1,1," + host::quoted(loose.formula) + ")");
        anna.open(671);
        anna.click("Act_Other");
        EXPECT_EQ(amount("A4", 1), loose.amount) << loose.formula;
        anna.close();
    }
}

TEST_F(StatementLedger, a_formula_cannot_change_the_books) {
    define("INSERT INTO D6830 (ID,G,A1,A6) VALUES (1,1,'x','1 as a;DELETE FROM D6802;select 1')");
    const std::string before = books.value("SELECT COUNT(*) FROM D6802");
    EXPECT_NE(recalculation_stops(671).find("公式只能是一个算式,不能含有“;”!"), std::string::npos);
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6802"), before);
}

} // namespace
} // namespace tests
