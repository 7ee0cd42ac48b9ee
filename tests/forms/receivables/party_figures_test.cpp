// The balances with customers and suppliers on real books, against figures worked out by hand.
#include <gtest/gtest.h>

#include "host/values/text.h"
#include "tests/support/books.h"

namespace tests {
namespace {

// The same story on both sides; %-words stand for the side's tables.
//
// 东方 (C01): 1000.00 from before the books, a sale of 500.00 in February. In March
//   5th  a sale of 2000.00 with 100.00 credited on it           + 1900.00
//   8th  a return of 300.00 settled through the account         -  300.00
//   9th  other receivable 50.00                                 +   50.00
//   10th 1150.00 received and 50.00 let off: the 1000.00 and 200.00 of February's sale
//   12th advance 400.00, of which 150.00 goes back on the 13th
//   14th 320.00 received: the remaining 300.00 of February's sale, 20.00 more than was owed
//   20th 250.00 of the advance set against the other receivable and 200.00 of March's sale
//   31st a sale of 10.00                                        +   10.00
// and a sale of 77.00 on 1 April. Opening 1500.00; new 1660.00; settled 1150.00 + 400.00 - 150.00 +
// 300.00 = 1700.00 and 50.00 let off; closing 1410.00. A return of 60.00 paid back in cash moves
// nothing here.
// 海天 (C02): 200.00 paid in advance before the books; nothing else. 长城 (C03): nothing.
const char* const story =
    "INSERT INTO %party (KH_GYS_ID,KG_NAME) VALUES ('C01','东方'),('C02','海天'),('C03','长城');"
    "INSERT INTO %sale (NOID,C,KH_GYS_ID,BDATE,USER_ID,TOLMONEY,REMONEY,YSMONEY) VALUES "
    "('初C01',2,'C01','2023-12-31','admin',1000,0,1000),"
    "('预C02',3,'C02','2023-12-31','admin',200,0,200),"
    "('S1',0,'C01','2024-02-10','admin',500,0,500),"
    "('S2',0,'C01','2024-03-05','admin',2000,100,1900),"
    "('S3',0,'C01','2024-03-31','admin',10,0,10),"
    "('S4',0,'C01','2024-04-01','admin',77,0,77);"
    "INSERT INTO %return (NOID,KH_GYS_ID,JY_ID,BDATE,TOLMONEY,YSMONEY) VALUES "
    "('R1','C01','0','2024-03-08',300,300),('R2','C01','1','2024-03-08',60,60);"
    "INSERT INTO %other (C,NOID,KH_GYS_ID,JY_ID,BDATE,USER_ID,TOLMONEY,YSMONEY) VALUES "
    "(1,'O1','C01','0','2024-03-09','admin',50,50);"
    "INSERT INTO %otherA (NOID,SZLB,MONEY,SZLB_CLASS) VALUES ('O1','01',50,0);"
    "INSERT INTO %head (T,NOID,KH_GYS_ID,JY_KM,JY_ID,MONEY,MONEY_SS,MONEY_YH,BDATE,USER_ID) VALUES "
    "(1,'K1','C01',0,'1',1200,1150,50,'2024-03-10','admin'),"
    "(1,'K2','C01',1,'1',400,400,0,'2024-03-12','admin'),"
    "(1,'K3','C01',2,'1',150,150,0,'2024-03-13','admin'),"
    "(1,'K4','C01',0,'1',%over,%over,0,'2024-03-14','admin'),"
    "(1,'K5','C01',3,'1',250,250,0,'2024-03-20','admin');"
    "INSERT INTO %headA (NOID,C,%saleNOID,KH_GYS_ID,MONEY) VALUES "
    "('K1',2,'初C01','C01',1000),('K1',0,'S1','C01',200),('K4',0,'S1','C01',300),"
    "('K5',0,'S2','C01',200);"
    "INSERT INTO %headA (NOID,C,%otherNOID,KH_GYS_ID,MONEY) VALUES ('K5',5,'O1','C01',50);";

std::string told_with(std::string text, std::vector<std::pair<std::string, std::string>> words) {
    for (const auto& [word, table] : words) text = host::replaced(text, word, table);
    return text;
}

// More than is owed can only be taken from customers.
std::string prepared() {
    return "INSERT INTO D6804 (SZLB_CLASS,SZLB,SZLB_NAME,KM_ID) VALUES (0,'01','其他','5102');" +
           told_with(story, {{"%party", "D1102"},
                             {"%sale", "D8102"},
                             {"%return", "D8103"},
                             {"%other", "D651"},
                             {"%head", "D631"},
                             {"%over", "320"}}) +
           "INSERT INTO D651A (D631NOID,SZLB,MONEY,SZLB_CLASS) VALUES ('K4','01',20,0);" +
           told_with(story, {{"%party", "D1103"},
                             {"%sale", "D8202"},
                             {"%return", "D8203"},
                             {"%other", "D652"},
                             {"%head", "D641"},
                             {"%over", "300"}});
}

class PartyFigures : public testing::Test {
protected:
    void TearDown() override { EXPECT_EQ(books.findings(), ""); }
    void ask(int code, const char* from, const char* to) {
        anna.open(code);
        anna.set("BDATE", from);
        anna.set("EDATE", to);
        anna.click("btn_ok");
    }
    // "C01 东方 1500.00 1660.00 1750.00 1410.00", a line a row.
    std::string shown(std::initializer_list<const char*> fields) {
        std::string text;
        for (const Row& row : anna.rows()) {
            std::string line;
            for (const char* field : fields)
                line += (line.empty() ? "" : " ") + row.at(field); // an opening has no number
            text += line + "\n";
        }
        return text;
    }
    std::string sums() { return shown({"KH_GYS_ID", "KG_NAME", "A", "B", "C", "D"}); }

    Books books{{.today = "2024-04-02", .prepare = prepared()}};
    Person anna{books.data(), books.person()};
};

TEST_F(PartyFigures, the_summary_says_what_was_owed_charged_settled_and_is_owed) {
    for (const int code : {633, 643}) {
        ask(code, "2024-03-01", "2024-03-31");
        EXPECT_EQ(sums(), "C01 东方 1500.00 1660.00 1750.00 1410.00\n"
                          "C02 海天 -200.00 0.00 0.00 -200.00\n"
                          "C03 长城 0.00 0.00 0.00 0.00\n");
        EXPECT_EQ(anna.footer("D"), "1210.00");
        EXPECT_EQ(anna.colors(1).at("D").at("font"), 255);
    }
}

TEST_F(PartyFigures, parties_without_business_or_without_a_balance_may_be_left_out) {
    anna.open(633);
    anna.set("BDATE", "2024-03-01");
    anna.set("EDATE", "2024-03-31");
    anna.check("CK1");
    anna.click("btn_ok");
    EXPECT_EQ(shown({"KH_GYS_ID"}), "C01\n");
    anna.key("F3");
    anna.check("CK1", false);
    anna.check("CK2");
    anna.click("btn_ok");
    EXPECT_EQ(shown({"KH_GYS_ID"}), "C01\nC02\n");
    anna.key("F3");
    anna.check("CK2", false);
    anna.set("KH_GYS_ID", "C02");
    anna.set("KH_GYS_ID2", "C03");
    anna.click("btn_ok");
    EXPECT_EQ(shown({"KH_GYS_ID"}), "C02\nC03\n");
    anna.key("F3");
    anna.set("KH_GYS_ID", "");
    anna.set("KH_GYS_ID2", "C02");
    anna.click("btn_ok");
    EXPECT_EQ(shown({"KH_GYS_ID"}), "C01\nC02\n");
}

TEST_F(PartyFigures, the_documents_add_up_to_the_sum_they_were_opened_from) {
    struct Side {
        int code;
        const char* detail;
        const char* rows;
    };
    const Side sides[] = {
        {633, "TF6632",
         "期初余额 1500.00 0.00 0.00 0.00 1500.00\n"
         "2024-03-05 S2 销售单 0.00 1900.00 0.00 0.00 1900.00\n"
         "2024-03-08 R1 销售退回 0.00 -300.00 0.00 0.00 -300.00\n"
         "2024-03-09 O1 其他应收 0.00 50.00 0.00 0.00 50.00\n"
         "2024-03-10 K1 销售收款 0.00 0.00 1150.00 50.00 -1200.00\n"
         "2024-03-12 K2 预收款 0.00 0.00 400.00 0.00 -400.00\n"
         "2024-03-13 K3 预收退款 0.00 0.00 -150.00 0.00 150.00\n"
         "2024-03-14 K4 销售收款 0.00 0.00 300.00 0.00 -300.00\n"
         "2024-03-20 K5 预收冲应收 0.00 0.00 0.00 0.00 0.00\n"
         "2024-03-31 S3 销售单 0.00 10.00 0.00 0.00 10.00\n"},
        {643, "TF6642",
         "期初余额 1500.00 0.00 0.00 0.00 1500.00\n"
         "2024-03-05 S2 采购进货 0.00 1900.00 0.00 0.00 1900.00\n"
         "2024-03-08 R1 采购退回 0.00 -300.00 0.00 0.00 -300.00\n"
         "2024-03-09 O1 其他应付 0.00 50.00 0.00 0.00 50.00\n"
         "2024-03-10 K1 采购付款 0.00 0.00 1150.00 50.00 -1200.00\n"
         "2024-03-12 K2 预付款 0.00 0.00 400.00 0.00 -400.00\n"
         "2024-03-13 K3 预付退款 0.00 0.00 -150.00 0.00 150.00\n"
         "2024-03-14 K4 采购付款 0.00 0.00 300.00 0.00 -300.00\n"
         "2024-03-20 K5 预付冲应付 0.00 0.00 0.00 0.00 0.00\n"
         "2024-03-31 S3 采购进货 0.00 10.00 0.00 0.00 10.00\n"}};
    for (const Side& side : sides) {
        ask(side.code, "2024-03-01", "2024-03-31");
        anna.double_click(0, "B");
        anna.expect_active(side.detail);
        EXPECT_EQ(shown({"BDATE", "NOID", "MNAME", "A", "B", "C", "F", "D"}), side.rows);
        const std::pair<const char*, const char*> footers[] = {
            {"A", "1500.00"}, {"B", "1660.00"}, {"C", "1700.00"}, {"F", "50.00"}, {"D", "1410.00"}};
        for (const auto& [field, sum] : footers) EXPECT_EQ(anna.footer(field), sum) << field;
        anna.close();
        anna.close();
    }
}

TEST_F(PartyFigures, the_closing_of_today_is_what_stands_open) {
    const std::pair<int, const char*> sides[] = {{633, "VD631"}, {643, "VD641"}};
    for (const auto& [code, view] : sides) {
        ask(code, "2024-04-01", "2024-04-02");
        EXPECT_EQ(shown({"KH_GYS_ID", "D"}), "C01 1487.00\nC02 -200.00\nC03 0.00\n");
        for (const Row& row : anna.rows())
            EXPECT_EQ(row.at("D"), books.value("SELECT XJYS FROM " + std::string(view) +
                                               " WHERE KH_GYS_ID='" + row.at("KH_GYS_ID") + "'"));
    }
}

TEST_F(PartyFigures, documents_of_other_modules_open_nothing_here) {
    const std::pair<int, const char*> sides[] = {{632, "20"}, {642, "21"}};
    for (const auto& [code, modules] : sides) {
        ask(code, "2024-03-01", "2024-03-31");
        anna.double_click(1, "NOID"); // the sale
        anna.expect_message("模块暂不开放!" + std::string(modules) + "2");
        anna.double_click(2, "NOID"); // the return
        anna.expect_message("模块暂不开放!" + std::string(modules) + "4");
        anna.close();
    }
}

TEST_F(PartyFigures, a_document_kept_here_is_shown_and_cannot_be_changed) {
    struct Shown {
        int code, row;
        const char *form, *number, *amount, *value;
    };
    const Shown documents[] = {{632, 4, "TF6631_1", "K1", "MONEY", "1150.00"},
                               {632, 8, "TF6631_1", "K5", "MONEY", "250.00"},
                               {632, 3, "TF6646_1", "O1", "TOLMONEY", "50.00"},
                               {642, 4, "TF6641_1", "K1", "YH", "50.00"},
                               {642, 3, "TF6647_1", "O1", "TOLMONEY", "50.00"}};
    for (const Shown& document : documents) {
        SCOPED_TRACE(document.form);
        ask(document.code, "2024-03-01", "2024-03-31");
        anna.double_click(document.row, "NOID");
        anna.expect_active(document.form);
        EXPECT_EQ(anna.value("Edit1"), document.number);
        EXPECT_EQ(anna.value("KH_GYS_ID"), "C01");
        EXPECT_EQ(anna.value(document.amount), document.value);
        EXPECT_NE(anna.cannot_set("BDATE", "2024-03-02"), "");
        anna.cannot_click("Act_Save");
        anna.close();
        anna.expect_active(document.code == 632 ? "TF6632" : "TF6642");
        anna.close();
    }
}

TEST_F(PartyFigures, a_document_deleted_meanwhile_is_told_of) {
    ask(632, "2024-03-01", "2024-03-31");
    books.execute("DELETE FROM D631 WHERE NOID='K3'");
    anna.double_click(6, "NOID");
    EXPECT_NE(anna.next_message().find("K3"), std::string::npos);
    anna.expect_active("TF6632");
}

TEST_F(PartyFigures, who_may_not_open_receipts_sees_their_amounts_alone) {
    ask(632, "2024-03-01", "2024-03-31");
    anna.inside([] {
        host::the_host().may = [](const host::Right& right) { return right.function != "631"; };
    });
    anna.double_click(4, "NOID");
    anna.expect_message("您没有打开单据“K1”的权限，请与系统管理员联系。");
    anna.expect_active("TF6632");
}

TEST_F(PartyFigures, a_file_holds_what_is_shown_with_the_sums_below) {
    ask(632, "2024-03-01", "2024-03-31");
    const std::string sheet = anna.export_spreadsheet();
    for (const char* line :
         {"客户代号,客户简称,日期,单号,单据类型,期初应收,本期应收,收款,优惠,期末应收",
          "C01,东方,2024-03-10,K1,销售收款,0.00,0.00,1150.00,50.00,-1200.00",
          ",,,,,1300.00,1660.00,1700.00,50.00,1210.00"})
        EXPECT_NE(sheet.find(line), std::string::npos) << line << sheet;
}

// Opening amounts are typed while the books are not set up; the initial posting makes them
// documents that the reports begin with.
TEST(OpeningAmountsOfBooks, become_the_first_balances_when_the_books_are_opened) {
    Books books{{.start = "",
                 .prepare = "INSERT INTO D1102 (KH_GYS_ID,KG_NAME,FULL_NAME) VALUES "
                            "('C01','东方','东方贸易'),('C02','海天','海天商行');"
                            "INSERT INTO D1103 (KH_GYS_ID,KG_NAME,FULL_NAME) VALUES "
                            "('G01','长江','长江电器');"}};
    Person anna{books.data(), books.person()};
    anna.open(628);
    anna.cell(0, "BEGIN_MONEY", "1000");
    anna.cell(1, "BEGINYS_MONEY", "250.5");
    anna.click("Act_Save");
    anna.close();
    anna.open(629);
    anna.cell(0, "BEGIN_MONEY", "70");
    anna.click("Act_Save");
    EXPECT_EQ(books.value("SELECT SUMMONEY FROM D1102 WHERE KH_GYS_ID='C02'"), "-250.50");
    EXPECT_EQ(books.value("SELECT SUMMONEY FROM D1103 WHERE KH_GYS_ID='G01'"), "70.00");
    anna.close();
    anna.open(699);
    anna.click("LA2");
    anna.forget_messages();
    anna.click("btn_ok");
    anna.expect_active("TF6699_2");
    anna.set("BDATE", "2024-01-01");
    anna.answer_next(true);
    anna.click("btn_ok");
    anna.forget_messages();
    EXPECT_EQ(books.value("SELECT PARAM FROM D6600 WHERE ID=2"), "2024-01");
    anna.open(633);
    anna.set("BDATE", "2024-01-01");
    anna.set("EDATE", "2024-01-31");
    anna.click("btn_ok");
    std::string balances;
    for (const Row& row : anna.rows()) balances += row.at("KH_GYS_ID") + " " + row.at("D") + "\n";
    EXPECT_EQ(balances, "C01 1000.00\nC02 -250.50\n");
    anna.open(628);
    anna.expect_message("帐套已启用，期初数据不能被更改!");
    EXPECT_EQ(anna.rows()[0].at("XJYS"), "1000.00");
    EXPECT_EQ(anna.rows()[1].at("YSM"), "250.50");
    EXPECT_EQ(books.findings(), "");
}

} // namespace
} // namespace tests
