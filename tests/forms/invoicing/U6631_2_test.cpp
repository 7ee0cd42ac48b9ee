// Receipts for what a dispatch note carried: one a customer, each document in full.
#include "tests/forms/invoicing/invoicing_desk.h"

namespace tests {
namespace {

// Note F1 carried two documents of K1 (100 and 50), one of K2 (30) and one of K3 (20).
class DispatchNote : public InvoicingDesk {
protected:
    DispatchNote() {
        books.execute(
            "INSERT INTO D8102 (NOID,KH_GYS_ID,BDATE,USER_ID,TOLMONEY,YSMONEY) VALUES "
            "('X1','K1','2024-03-10','admin',100,100),('X2','K1','2024-03-11','admin',50,50),"
            "('X3','K2','2024-03-11','admin',30,30),('X4','K3','2024-03-12','admin',20,20),"
            "('X5','K1','2024-03-12','admin',7,7);"
            "INSERT INTO D8500A (NOID,D8102NOID) VALUES ('F1','X1'),('F1','X2'),('F1','X3'),"
            "('F1','X4'),('F2','X5')");
        anna.click("Act_Import");
        anna.expect_active("TF6631_2");
    }
    void list(const std::string& note) {
        anna.set("Edit1", note);
        anna.mark();
        anna.click("btn_ref");
    }
    std::string listed() {
        std::string text;
        for (const Row& row : anna.rows("GRID1"))
            text += row.at("INX") + " " + row.at("KH_GYS_ID") + " " + row.at("NOID") + " " +
                    row.at("TOLMONEY") + "\n";
        return text;
    }
    static std::string line(const std::string& number, const std::string& document,
                            const std::string& customer, const std::string& money) {
        return "INSERT INTO D631A (NOID,C,T,D8102NOID,KH_GYS_ID, MONEY) VALUES ('" + number +
               "',0,1,'" + document + "','" + customer + "','" + money + "');";
    }
    static std::string head(const std::string& number, const std::string& customer,
                            const std::string& account, const std::string& total,
                            const std::string& date, const std::string& slip) {
        return "INSERT INTO D631 (T, NOID,KH_GYS_ID, JY_KM, KM_ID, JY_ID, MONEY_SS,MONEY_YH,MONEY,"
               "BDATE, EDATE, PH, USER_ID) values (0,'" +
               number + "','" + customer + "','0','1001','" + account + "','" + total + "','0','" +
               total + "','" + date + "',NULL,'" + slip + "','admin');";
    }
    std::vector<std::string> batches_sent() {
        std::vector<std::string> batches;
        for (const host::SentStatement& statement : anna.sent())
            if (statement.call == "ExecSql")
                batches.push_back(statement.key + " " + statement.operation + ": " +
                                  statement.text);
        anna.mark();
        return batches;
    }
};

TEST_F(DispatchNote, is_listed_by_customer_with_his_documents_before_his_total) {
    list("F1");
    EXPECT_EQ(anna.sent_texts().front(),
              "SELECT *,' ' AS B FROM ( SELECT 1 AS INX, NULL AS NOID, D8102.KH_GYS_ID, "
              "D1102.KG_NAME, SUM(D8102.TOLMONEY) AS TOLMONEY, SUM(D8102.TOLMONEY) AS SMONEY, "
              "GETDATE() AS BDATE, (SELECT JY_ID FROM D1010 WHERE JY_ID='1') AS "
              "JY_ID,CONVERT(VARCHAR(50),NULL) AS JY_NAME, CONVERT(VARCHAR(20),NULL) AS PH FROM "
              "D8500A INNER JOIN D8102 ON D8500A.D8102NOID = D8102.NOID INNER JOIN D1102 ON "
              "D8102.KH_GYS_ID = D1102.KH_GYS_ID WHERE (D8500A.NOID ='F1') GROUP BY "
              "D8102.KH_GYS_ID, D1102.KG_NAME UNION ALL SELECT 0 AS INX,D8102.NOID, "
              "D1102.KH_GYS_ID, D1102.KG_NAME, D8102.TOLMONEY, 0.00 AS SMONEY, "
              "D8102.BDATE,NULL,NULL,NULL FROM D8500A INNER JOIN D8102 ON D8500A.D8102NOID = "
              "D8102.NOID INNER JOIN D1102 ON D8102.KH_GYS_ID = D1102.KH_GYS_ID WHERE "
              "(D8500A.NOID = 'F1') ) A ORDER BY KH_GYS_ID,INX,NOID ");
    EXPECT_EQ(listed(), "0 K1 X1 100.00\n0 K1 X2 50.00\n1 K1  150.00\n0 K2 X3 30.00\n"
                        "1 K2  30.00\n0 K3 X4 20.00\n1 K3  20.00\n");
    const Row total = anna.rows("GRID1")[2];
    EXPECT_EQ(total.at("BDATE"), "2024-03-15");
    EXPECT_EQ(total.at("JY_ID"), "1");
    EXPECT_EQ(total.at("JY_NAME"), "现金");
    EXPECT_EQ(anna.footer("SMONEY", "GRID1"), "200.00");
    EXPECT_EQ(anna.colors(2, "GRID1").at("KG_NAME").at("background"), 0xFFFF80);
    EXPECT_TRUE(anna.colors(1, "GRID1").is_null());
}

TEST_F(DispatchNote, is_told_when_it_carried_nothing) {
    list("F9");
    anna.expect_message("派车单“F9”没有销售单!请核对派车单号。");
    anna.mark();
    anna.click("btn_ok"); // nothing happens on an empty list
    EXPECT_TRUE(anna.sent_texts().empty());
    anna.expect_active("TF6631_2");
}

TEST_F(DispatchNote, only_the_totals_are_changed) {
    list("F1");
    for (const char* field : {"BDATE", "JY_ID", "PH"}) {
        anna.cannot_cell(0, field, "2", "GRID1");
        anna.expect_message("请更改有底色资料行，白底色资料行不可更改!");
    }
    anna.cannot_cell(2, "JY_ID", "9", "GRID1");
    anna.expect_message("结算帐户“9”不存在!请按 F4 选择结算帐户。");
    anna.cell(2, "JY_ID", "2", "GRID1");
    EXPECT_EQ(anna.rows("GRID1")[2].at("JY_NAME"), "工行");
}

TEST_F(DispatchNote, becomes_one_receipt_a_customer_with_a_line_a_document) {
    list("F1");
    anna.cell(4, "BDATE", "2024-03-14", "GRID1");
    anna.cell(4, "JY_ID", "2", "GRID1");
    anna.cell(4, "PH", "p'9", "GRID1");
    anna.mark();
    anna.click("btn_ok");
    const std::string r1 = "631240315001", r2 = "631240315002", r3 = "631240315003";
    EXPECT_EQ(batches_sent(),
              (std::vector<std::string>{
                  r1 + " A: " + line(r1, "X1", "K1", "            100.00") +
                      line(r1, "X2", "K1", "             50.00") +
                      head(r1, "K1", "1", "150.00", "2024-03-15", ""),
                  r2 + " A: " + line(r2, "X3", "K2", "             30.00") +
                      head(r2, "K2", "2", "30.00", "2024-03-14", "p''9"),
                  r3 + " A: " + line(r3, "X4", "K3", "             20.00") +
                      head(r3, "K3", "1", "20.00", "2024-03-15", "")}));
    EXPECT_EQ(anna.rows("GRID1")[2].at("KG_NAME"), "成功导入,收款单号:" + r1);
    EXPECT_EQ(anna.rows("GRID1")[6].at("KG_NAME"), "成功导入,收款单号:" + r3);
    for (const char* document : {"X1", "X2", "X3", "X4"})
        EXPECT_TRUE(settled(document).ends_with(" 0.00")) << document;
    EXPECT_EQ(settled("X5"), "7.00 0.00 7.00");
    anna.click("btn_ok"); // the same note again: every customer has his receipt
    EXPECT_TRUE(batches_sent().empty());
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D631"), "3");
    anna.click("btn_Cancel");
    anna.expect_active("TF6631");
    EXPECT_EQ(anna.row_count(), 3); // the list behind shows them
}

TEST_F(DispatchNote, a_customer_whose_receipt_is_refused_leaves_his_number_to_the_next) {
    books.execute("CREATE TRIGGER TR_TEST ON D631 AFTER INSERT AS BEGIN IF EXISTS (SELECT * FROM "
                  "inserted WHERE PH='坏') RAISERROR('测试拒绝', 16, 1) END");
    list("F1");
    anna.cell(2, "PH", "坏", "GRID1");
    anna.mark();
    anna.click("btn_ok");
    anna.forget_messages();
    EXPECT_EQ(books.table("SELECT NOID,KH_GYS_ID FROM D631 ORDER BY NOID"),
              (Rows{{{"NOID", "631240315001"}, {"KH_GYS_ID", "K2"}},
                    {{"NOID", "631240315002"}, {"KH_GYS_ID", "K3"}}}));
    EXPECT_EQ(anna.rows("GRID1")[2].at("KG_NAME"), "常熟建材");
    anna.cell(2, "PH", "好", "GRID1");
    anna.mark();
    anna.click("btn_ok"); // only the one that is missing
    EXPECT_EQ(batches_sent().size(), 1U);
    EXPECT_EQ(books.value("SELECT NOID FROM D631 WHERE KH_GYS_ID='K1'"), "631240315003");
}

TEST_F(DispatchNote, a_document_is_shown_by_a_double_click) {
    list("F1");
    anna.double_click(1, "NOID", "GRID1");
    anna.expect_active("TF6631_3");
    EXPECT_EQ(anna.value("Edit1"), "X2");
    EXPECT_NE(anna.cannot_set("NOTE", "x"), "");
    anna.forget_messages();
    anna.close();
    anna.expect_active("TF6631_2");
    anna.double_click(2, "NOID", "GRID1"); // a total is no document
    anna.expect_active("TF6631_2");
}

TEST_F(DispatchNote, who_may_not_add_receipts_imports_none) {
    anna.click("btn_Cancel");
    PersonOptions options = books.person();
    options.may = [](const host::Right& right) { return right.action != "add"; };
    Person clerk(books.data(), options);
    clerk.open(631);
    clerk.cannot_click("Act_Import");
    clerk.expect_message("您没有“派车单导入”的权限，请与系统管理员联系。");
}

} // namespace
} // namespace tests
