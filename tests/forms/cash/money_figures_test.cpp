// The books of money accounts on real books, against figures worked out by hand.
#include <gtest/gtest.h>

#include "tests/support/books.h"

namespace tests {
namespace {

// 现金 begins with 500.00, 工行 with 2000.00. In March
//         现金 in    out      工行 in    out
//    5th             300.00    300.00            paid into the bank (entered in the test)
//    6th  120.50                        120.50   drawn from the bank (entered in the test)
//    7th  400.00               600.00            R1, 1000.00 received on both accounts
//    8th  150.00                                 R2, an advance received
//    9th                                 50.00   R3, some of it goes back
//   10th              30.00                      T1, a sales return paid back in cash
//   12th                                700.00   P1, a supplier paid
//   12th   20.00      80.00                      P2, an advance paid; P3, some of it comes back
//   13th                        45.00            X1, a purchase return paid back
//   14th   66.00                         12.34   Q1, other income; E1, an expense
//   31st    5.00                                 Q9, other income
//         761.50     410.00    945.00   882.84
// R4 sets 100.00 of an advance against a sale and P4 owes 9.00: no money moves.
const char* const others =
    "UPDATE D1010 SET BEGIN_MONEY=500 WHERE JY_ID='1';"
    "INSERT INTO D1010 (JY_ID,JY_NAME,BEGIN_MONEY) VALUES ('2','工行',2000);"
    "INSERT INTO D1101 (YW_ID,YW_NAME) VALUES ('y1','王五');"
    "INSERT INTO D1008 (BM_ID,BM_NAME) VALUES ('b1','财务部');"
    "INSERT INTO D1102 (KH_GYS_ID,KG_NAME) VALUES ('K1','东方');"
    "INSERT INTO D1103 (KH_GYS_ID,KG_NAME) VALUES ('G1','海天');"
    "INSERT INTO D6804 (SZLB_CLASS,SZLB,SZLB_NAME,KM_ID) VALUES (0,'01','利息','5301'),"
    "(1,'31','房租','5502');"
    "INSERT INTO D8102 (NOID,C,KH_GYS_ID,BDATE,USER_ID,TOLMONEY,YSMONEY) VALUES "
    "('S1',0,'K1','2024-03-02','admin',1500,1500);"
    "INSERT INTO D8202 (NOID,C,KH_GYS_ID,BDATE,USER_ID,TOLMONEY,YSMONEY) VALUES "
    "('C1',0,'G1','2024-03-02','admin',700,700);"
    "INSERT INTO D631 (T,NOID,KH_GYS_ID,JY_KM,JY_ID,MONEY,MONEY_SS,BDATE,USER_ID) VALUES "
    "(1,'R1','K1',0,'1',1000,1000,'2024-03-07','admin'),"
    "(1,'R2','K1',1,'1',150,150,'2024-03-08','admin'),"
    "(1,'R3','K1',2,'2',50,50,'2024-03-09','admin'),"
    "(1,'R4','K1',3,'1',100,100,'2024-03-09','admin');"
    "INSERT INTO D631A (NOID,C,D8102NOID,KH_GYS_ID,MONEY) VALUES ('R1',0,'S1','K1',1000),"
    "('R4',0,'S1','K1',100);"
    "INSERT INTO D631B (INX,NOID,JY_ID,MONEY) VALUES (0,'R1','1',400),(0,'R1','2',600);"
    "INSERT INTO D8103 (NOID,KH_GYS_ID,JY_ID,BDATE,TOLMONEY,YSMONEY) VALUES "
    "('T1','K1','1','2024-03-10',30,30);"
    "INSERT INTO D641 (T,NOID,KH_GYS_ID,JY_KM,JY_ID,MONEY,MONEY_SS,BDATE,USER_ID) VALUES "
    "(1,'P1','G1',0,'2',700,700,'2024-03-12','admin'),"
    "(1,'P2','G1',1,'1',80,80,'2024-03-12','admin'),"
    "(1,'P3','G1',2,'1',20,20,'2024-03-12','admin');"
    "INSERT INTO D641A (NOID,C,D8202NOID,KH_GYS_ID,MONEY) VALUES ('P1',0,'C1','G1',700);"
    "INSERT INTO D8203 (NOID,KH_GYS_ID,JY_ID,BDATE,TOLMONEY,YSMONEY) VALUES "
    "('X1','G1','2','2024-03-13',45,45);"
    "INSERT INTO D651 (C,NOID,KH_GYS_ID,YW_ID,BM_ID,JY_ID,BDATE,ZY,USER_ID,TOLMONEY,SUMMONEY) "
    "VALUES (0,'Q1','K1','y1','b1','1','2024-03-14','利息','admin',66,66),"
    "(0,'Q9','K1','','','1','2024-03-31','利息','admin',5,5);"
    "INSERT INTO D651A (NOID,SZLB,MONEY,SZLB_CLASS) VALUES ('Q1','01',66,0),('Q9','01',5,0);"
    "INSERT INTO D652 (C,NOID,KH_GYS_ID,JY_ID,BDATE,USER_ID,TOLMONEY,SUMMONEY,YSMONEY) VALUES "
    "(0,'E1','G1','2','2024-03-14','admin',12.34,12.34,0),"
    "(1,'P4','G1','0','2024-03-14','admin',9,0,9);"
    "INSERT INTO D652A (NOID,SZLB,MONEY,SZLB_CLASS) VALUES ('E1','31',12.34,0),('P4','31',9,0);";

class MoneyFigures : public testing::Test {
protected:
    void SetUp() override {
        anna.open(648);
        transfer("2024-03-05", "1", "2", "300", "存现");
        transfer("2024-03-06", "2", "1", "120.5", "提现");
        anna.close();
    }
    void TearDown() override { EXPECT_EQ(books.findings(), ""); }
    void transfer(const char* day, const char* paying, const char* receiving, const char* amount,
                  const char* summary) {
        anna.click("Act_Add");
        anna.set("BDATE", day);
        anna.set("JY_ID_FK", paying);
        anna.set("JY_ID_SK", receiving);
        anna.set("MONEY", amount);
        anna.set("EDIT2", summary);
        anna.set("YW_ID", "y1");
        anna.set("BM_ID", "b1");
        anna.click("btn_ok");
        anna.expect_active("TF6648");
    }
    void ask(int code, const std::string& account = "") {
        anna.open(code);
        anna.set("JY_ID", account);
        anna.click("btn_ok");
    }
    static PersonOptions administrator(PersonOptions options) {
        options.user_name = "管理员"; // as the books call him
        return options;
    }
    // "1 现金 500.00 …", a line a row.
    std::string shown(std::initializer_list<const char*> fields) {
        std::string text;
        for (const Row& row : anna.rows()) {
            std::string line;
            for (const char* field : fields) line += (line.empty() ? "" : " ") + row.at(field);
            text += line + "\n";
        }
        return text;
    }
    void open_row_of(const std::string& number) {
        const Rows rows = anna.rows();
        for (std::size_t at = 0; at < rows.size(); ++at)
            if (rows[at].at("NOID") == number)
                return anna.double_click(static_cast<int>(at), "NOID");
        ADD_FAILURE() << number << " is not listed";
    }

    Books books{{.start = "2024-03", .today = "2024-03-15", .prepare = others}};
    Person anna{books.data(), administrator(books.person())};
};

TEST_F(MoneyFigures, the_ledger_adds_up_what_came_in_and_went_out_of_each_account) {
    ask(650);
    EXPECT_EQ(shown({"JY_ID", "JY_NAME", "QC", "INMONEY", "OUTMONEY", "YE"}),
              "1 现金 500.00 761.50 410.00 851.50\n"
              "2 工行 2000.00 945.00 882.84 2062.16\n");
    EXPECT_EQ(anna.footer("QC"), "2500.00");
    EXPECT_EQ(anna.footer("INMONEY"), "1706.50");
    EXPECT_EQ(anna.footer("OUTMONEY"), "1292.84");
    EXPECT_EQ(anna.footer("YE"), "2913.66");
}

TEST_F(MoneyFigures, the_daybook_runs_from_the_opening_to_the_ledgers_closing) {
    ask(652, "1");
    EXPECT_EQ(shown({"MNAME", "ZY", "KG_NAME", "INMONEY", "OUTMONEY", "YE"}),
              "期初余额   0.00 0.00 500.00\n"
              "银行存取款单 存现 工行 0.00 300.00 200.00\n"
              "银行存取款单 提现 工行 120.50 0.00 320.50\n"
              "销售收款  东方 400.00 0.00 720.50\n"
              "预收款  东方 150.00 0.00 870.50\n"
              "销售退回  东方 0.00 30.00 840.50\n"
              "预付款  海天 0.00 80.00 760.50\n"
              "预付退款  海天 20.00 0.00 780.50\n"
              "收款结算 利息 东方 66.00 0.00 846.50\n"
              "收款结算 利息 东方 5.00 0.00 851.50\n");
    EXPECT_EQ(anna.footer("INMONEY"), "761.50");
    EXPECT_EQ(anna.footer("OUTMONEY"), "410.00");
}

// The last day of the range is left out there: 5.00 of the 31st.
TEST_F(MoneyFigures, the_daybook_opened_from_the_ledger_ends_the_day_before_the_last) {
    ask(650);
    anna.double_click(0, "JY_ID");
    anna.expect_active("TF6652");
    EXPECT_EQ(anna.row_count(), 9);
    EXPECT_EQ(anna.rows().back().at("YE"), "846.50");
}

TEST_F(MoneyFigures, the_detail_of_all_accounts_leaves_transfers_out_and_shows_the_change) {
    ask(653);
    EXPECT_EQ(shown({"BDATE", "MNAME", "INMONEY", "OUTMONEY"}),
              "2024-03-07 销售收款 400.00 0.00\n"
              "2024-03-07 销售收款 600.00 0.00\n"
              "2024-03-08 预收款 150.00 0.00\n"
              "2024-03-09 预收退款 0.00 50.00\n"
              "2024-03-10 销售退回 0.00 30.00\n"
              "2024-03-12 采购付款 0.00 700.00\n"
              "2024-03-12 预付款 0.00 80.00\n"
              "2024-03-12 预付退款 20.00 0.00\n"
              "2024-03-13 采购退回 45.00 0.00\n"
              "2024-03-14 收款结算 66.00 0.00\n"
              "2024-03-14 费用结算 0.00 12.34\n"
              "2024-03-31 收款结算 5.00 0.00\n");
    EXPECT_EQ(anna.footer("INMONEY"), "1286.00");
    EXPECT_EQ(anna.footer("OUTMONEY"), "872.34"); // 1286.00 - 872.34 = 2913.66 - 2500.00
}

TEST_F(MoneyFigures, the_detail_of_an_account_lists_a_transfer_where_it_pays) {
    ask(653, "1");
    const std::string rows = shown({"MNAME", "ZY", "OUTMONEY", "KG_NAME", "BM_NAME", "YW_NAME"});
    EXPECT_NE(rows.find("银行存取款单 存现 300.00 工行 财务部 王五\n"), std::string::npos) << rows;
    EXPECT_EQ(rows.find("提现"), std::string::npos) << rows;
    ask(653, "2");
    EXPECT_NE(shown({"MNAME", "ZY", "OUTMONEY"}).find("银行存取款单 提现 120.50\n"),
              std::string::npos);
}

TEST_F(MoneyFigures, a_row_opens_its_document_to_be_looked_at) {
    ask(653, "1");
    open_row_of("648240315001");
    anna.expect_active("TF6648_1");
    EXPECT_EQ(anna.value("Edit1"), "648240315001");
    EXPECT_EQ(anna.value("MONEY"), "300.00");
    EXPECT_EQ(anna.control("JY_ID_SK").at("display"), "工行");
    EXPECT_EQ(anna.value("USER_NAME"), "管理员");
    EXPECT_FALSE(anna.visible("btn_ok"));
    EXPECT_NE(anna.cannot_set("MONEY", "1"), "");
    anna.forget_messages();
    EXPECT_TRUE(anna.print().says("单号：648240315001    日期：2024-03-05"));
    anna.key("F2");
    anna.click("btn_Cancel");
    anna.expect_active("TF6653");
    EXPECT_EQ(books.value("SELECT MONEY FROM D653 WHERE NOID='648240315001'"), "300.00");
}

TEST_F(MoneyFigures, documents_of_each_kind_open_in_the_form_they_were_entered_in) {
    // account  number  form
    const struct {
        const char *account, *number, *form;
    } documents[] = {{"1", "R1", "TF6631_1"}, {"2", "R3", "TF6631_1"}, {"1", "P3", "TF6641_1"},
                     {"2", "P1", "TF6641_1"}, {"1", "Q1", "TF6646_1"}, {"2", "E1", "TF6647_1"}};
    for (const auto& document : documents) {
        ask(653, document.account);
        open_row_of(document.number);
        anna.expect_active(document.form);
        anna.close();
        anna.expect_active("TF6653");
        anna.close();
    }
    ask(653);
    for (const auto& [number, code] : {std::pair{"T1", "204"}, std::pair{"X1", "214"}}) {
        open_row_of(number);
        anna.expect_message(std::string("模块暂不开放!") + code);
    }
    for (const char* advance : {"R2", "P2"}) {
        open_row_of(advance); // nothing
        anna.expect_active("TF6653");
    }
}

TEST_F(MoneyFigures, a_document_gone_meanwhile_is_told_of) {
    ask(652, "1");
    books.execute("DELETE FROM D653 WHERE NOID='648240315002'");
    open_row_of("648240315002");
    anna.expect_message("单据“648240315002”已不存在,可能已被他人删除!");
    anna.expect_active("TF6652");
}

TEST_F(MoneyFigures, a_transfer_changed_in_the_list_changes_both_accounts) {
    anna.open(648);
    EXPECT_EQ(anna.footer("MONEY"), "420.50");
    anna.row(0);
    anna.click("Act_Modify");
    anna.set("MONEY", "200");
    anna.click("btn_ok");
    anna.click("Act_Modify"); // again, without reading the list anew
    anna.set("EDIT2", "存'现'");
    anna.click("btn_ok");
    EXPECT_EQ(books.table("SELECT NOID,MONEY,ZY,USER_ID FROM D653 WHERE MONEY=200"),
              (Rows{{{"NOID", "648240315001"},
                     {"MONEY", "200.00"},
                     {"ZY", "存'现'"},
                     {"USER_ID", "admin"}}}));
    const Rows shown_before = anna.rows();
    anna.key("F5");
    EXPECT_EQ(anna.rows(), shown_before);
    ask(650);
    EXPECT_EQ(shown({"YE"}), "951.50\n1962.16\n");
}

TEST_F(MoneyFigures, a_transfer_that_another_changed_meanwhile_is_not_written_over) {
    anna.open(648);
    anna.row(0);
    anna.click("Act_Modify");
    books.execute("UPDATE D653 SET MONEY=1 WHERE NOID='648240315001'");
    anna.set("MONEY", "200");
    anna.click("btn_ok");
    anna.expect_message("单据“648240315001”已被他人修改,不能保存!请退出后刷新列表,再修改。");
    anna.click("btn_Cancel");
    EXPECT_EQ(books.value("SELECT MONEY FROM D653 WHERE NOID='648240315001'"), "1.00");
}

TEST_F(MoneyFigures, a_report_without_rows_is_not_printed_but_says_so) {
    for (const int report : {650, 652, 653}) {
        anna.open(report);
        anna.click("btn_Cancel");
        for (const char* act : {"Act_Print", "Act_Preview"}) {
            anna.click(act);
            anna.expect_message("没有可打印的内容，请先选择查询条件或录入数据!");
        }
    }
}

TEST_F(MoneyFigures, a_carried_page_of_the_daybook_goes_on_with_its_sums) {
    std::string many;
    for (int i = 0; i < 60; ++i)
        many += "INSERT INTO D651 (C,NOID,KH_GYS_ID,JY_ID,BDATE,USER_ID,TOLMONEY,SUMMONEY) VALUES "
                "(0,'Z" + std::to_string(100 + i) + "','K1','2','2024-03-20','admin',1,1);"
                "INSERT INTO D651A (NOID,SZLB,MONEY,SZLB_CLASS) VALUES ('Z" +
                std::to_string(100 + i) + "','01',1,0);";
    books.execute(many);
    ask(652, "2");
    const PrintedPaper paper = anna.print();
    ASSERT_GE(paper.pages.size(), 2U);
    EXPECT_TRUE(paper.says("过次页", 0));
    EXPECT_TRUE(paper.says("承前页", 1));
}

} // namespace
} // namespace tests
