// Other payments: the twin of the receipts, on its own tables and in its own words.
#include "tests/forms/other_documents/other_document_desk.h"

namespace tests {
namespace {

const std::string number = "647240315001";

class OtherPayment : public OtherDocumentDesk {
protected:
    OtherPayment() { new_document(647); }
};

TEST_F(OtherPayment, begins_with_every_expenditure_category) {
    EXPECT_EQ(anna.caption(), "其他应付款");
    EXPECT_EQ(anna.value("Edit1"), number);
    EXPECT_EQ(anna.control("KH_GYS_ID").at("caption"), "供  应  商");
    EXPECT_EQ(anna.control("JY_ID").at("caption"), "付款帐户");
    EXPECT_EQ(anna.control("DBGridEh").at("columns")[1].at("title"), "支出类别");
    EXPECT_EQ(anna.rows()[0].at("SZLB_NAME"), "房租");
    EXPECT_EQ(anna.row_count(), 2);
}

TEST_F(OtherPayment, settled_at_once_writes_its_lines_with_class_0) {
    anna.set("KH_GYS_ID", "G1");
    anna.cell(1, "MONEY", "25");
    anna.click("Act_Save");
    EXPECT_EQ(batch_sent(),
              "INSERT INTO D652 (C, NOID, KH_GYS_ID, YW_ID, BM_ID, JY_ID, BDATE, ZY, USER_ID, "
              "TOLMONEY,SUMMONEY) VALUES ('0','" + number +
                  "','G1','','','1','2024-03-15','','admin','25.00','25.00');"
                  "INSERT INTO D652A (NOID, SZLB, MONEY, NOTE, SZLB_CLASS)  VALUES ('" + number +
                  "','22','25.00','',0);");
    EXPECT_EQ(documents("D652"), number + " 0 25.00 25.00 0.00 1");
}

TEST_F(OtherPayment, left_open_needs_its_supplier_and_is_owed_to_him) {
    anna.set("CB1", "其他应付");
    anna.cell(0, "MONEY", "300");
    anna.set("BM_ID", "B1");
    anna.click("Act_Save");
    anna.expect_message("单据类别为[其他应付]情况下必须填写供应商!");
    anna.set("CB1", "费用结算");
    anna.set("BM_ID", "");
    anna.click("Act_Save");
    anna.expect_message("供应商,经手人,部门,至少选填一项!");
    anna.set("CB1", "其他应付");
    anna.set("KH_GYS_ID", "G1");
    anna.mark();
    anna.click("Act_Save");
    EXPECT_NE(batch_sent().find("UPDATE D652 SET YSMONEY=TOLMONEY-SUMMONEY WHERE NOID='" + number +
                                "';"),
              std::string::npos);
    EXPECT_EQ(documents("D652"), number + " 1 300.00 0.00 300.00 0");
    EXPECT_EQ(books.value("SELECT YM FROM VD641 WHERE KH_GYS_ID='G1'"), "300.00");
}

TEST_F(OtherPayment, a_change_rewrites_the_lines_of_its_own_table) {
    anna.set("CB1", "其他应付");
    anna.set("KH_GYS_ID", "G1");
    anna.cell(0, "MONEY", "300");
    anna.click("Act_Save");
    anna.close();
    EXPECT_EQ(anna.rows()[0].at("JY_NAME"), "应付款帐户");
    anna.click("Act_Modify");
    EXPECT_EQ(anna.control("JY_ID").at("display"), "应付款帐户");
    anna.mark();
    anna.cell(0, "MONEY", "310");
    anna.click("Act_Save");
    EXPECT_EQ(batch_sent(),
              "UPDATE D652 SET KH_GYS_ID='G1',BDATE='2024-03-15',JY_ID='0',bm_ID='',YW_ID='',ZY='',"
              "TOLMONEY='310.00',USER_ID='admin',C='1' WHERE noid='" + number +
                  "';UPDATE D652 SET YSMONEY=TOLMONEY-SUMMONEY WHERE NOID='" + number +
                  "';delete from  D652A WHERE NOID='" + number +
                  "';INSERT INTO D652A (NOID, SZLB, MONEY, NOTE, SZLB_CLASS)  VALUES ('" + number +
                  "','21','310.00','',0);");
}

TEST_F(OtherPayment, is_deleted_and_asked_for_in_its_own_table) {
    anna.set("KH_GYS_ID", "G1");
    anna.cell(0, "MONEY", "300");
    anna.click("Act_Save");
    anna.close();
    EXPECT_EQ(anna.caption(), "其他付款单");
    anna.click("Act_Locate");
    EXPECT_EQ(anna.control("KH_GYS_ID").at("caption"), "供应商号");
    anna.set("KH_GYS_ID", "G1");
    anna.set("CB1", "费用结算");
    anna.mark();
    anna.click("btn_ok");
    EXPECT_TRUE(anna.sent_texts().front().ends_with(
        " WHERE (D652.BDATE>='2024-03-01') AND (D652.BDATE<'2024-04-01') AND "
        "(D652.KH_GYS_ID='G1') AND (c=0) ORDER BY D652.BDATE,D652.NOID"));
    anna.mark();
    anna.answer_next(true);
    anna.click("Act_Delete");
    anna.expect_question("确定要删除“" + number + "”吗？");
    EXPECT_EQ(batch_sent(), "delete from D652 Where NOID='" + number + "'");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D652A"), "0");
}

} // namespace
} // namespace tests
