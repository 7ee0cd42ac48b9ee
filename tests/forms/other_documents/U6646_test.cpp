// The list of other receipts: its columns, its conditions, deleting.
#include "host/contract/U_glo.h"
#include "tests/forms/other_documents/other_document_desk.h"

namespace tests {
namespace {

const std::string heads =
    "SELECT D651.*, SYS_USER.USER_NAME, D1102.KG_NAME, D1101.YW_NAME, D1008.BM_NAME,CASE D651.C "
    "WHEN 0 THEN '收款结算' else '其他应收' END AS C_NAME, CASE D1010.JY_ID WHEN '0' THEN "
    "'应收款帐户' ELSE D1010.JY_NAME END AS JY_NAME FROM D651 INNER JOIN SYS_USER ON D651.USER_ID = "
    "SYS_USER.USER_ID INNER JOIN D1010 ON D651.JY_ID = D1010.JY_ID LEFT JOIN D1102 ON "
    "D651.KH_GYS_ID = D1102.KH_GYS_ID LEFT JOIN D1101 ON D651.YW_ID = D1101.YW_ID LEFT JOIN D1008 "
    "ON D651.BM_ID = D1008.BM_ID ";
const std::string in_order = " ORDER BY D651.BDATE,D651.NOID";
const std::string march = " WHERE (D651.BDATE>='2024-03-01') AND (D651.BDATE<'2024-04-01')";

class OtherReceipts : public OtherDocumentDesk {
protected:
    // Q1 settled at once by K1, Q2 left open with K2, Q3 settled in April without a customer.
    OtherReceipts() {
        books.execute(
            "INSERT INTO D651 (NOID,C,KH_GYS_ID,YW_ID,BM_ID,JY_ID,BDATE,ZY,USER_ID,TOLMONEY,"
            "SUMMONEY,YSMONEY) VALUES "
            "('Q1',0,'K1','','','2','2024-03-05','罚款','admin',70,70,0),"
            "('Q2',1,'K2','Y1','','0','2024-03-06','租金','admin',120,0,120),"
            "('Q3',0,'','','B1','1','2024-04-01','利息','admin',5,5,0);"
            "INSERT INTO D651A (NOID,SZLB,MONEY,NOTE) VALUES ('Q1','02',70,'迟到'),"
            "('Q2','03',120,NULL),('Q3','01',5,NULL)");
        anna.open(646);
    }
    std::string listed() {
        std::string numbers;
        for (const Row& row : anna.rows()) numbers += row.at("NOID") + " ";
        return numbers;
    }
    // Asks with the dialog as it stands; the statement sent.
    std::string ask() {
        anna.mark();
        anna.click("btn_ok");
        anna.expect_active("TF6646");
        for (const std::string& text : anna.sent_texts())
            if (text.starts_with(heads)) return text;
        return "";
    }
};

TEST_F(OtherReceipts, are_those_of_the_current_period_with_the_lines_of_the_selected_one) {
    EXPECT_EQ(anna.caption(), "其他收款单");
    EXPECT_EQ(listed(), "Q1 Q2 ");
    EXPECT_EQ(anna.footer("TOLMONEY"), "190.00");
    EXPECT_EQ(anna.footer("SUMMONEY"), "70.00");
    EXPECT_EQ(anna.rows()[0].at("C_NAME"), "收款结算");
    EXPECT_EQ(anna.rows()[1].at("JY_NAME"), "应收款帐户");
    anna.mark();
    anna.row(1);
    EXPECT_EQ(anna.sent_texts(),
              (std::vector<std::string>{
                  "SELECT D651A.*, D6804.SZLB_NAME FROM D651A INNER JOIN D6804 ON D651A.SZLB = "
                  "D6804.SZLB  WHERE (D651A.NOID ='Q2') order by D651A.id "}));
    EXPECT_EQ(anna.rows("DBGridEhLine")[0].at("SZLB_NAME"), "租金收入");
    EXPECT_EQ(anna.footer("MONEY", "DBGridEhLine"), "120.00");
}

TEST_F(OtherReceipts, have_their_columns_in_order) {
    std::string shown;
    const nlohmann::json grid = anna.control("DBGridEh");
    for (const auto& column : grid.at("columns"))
        if (column.at("visible").get<bool>()) shown += column.at("title").get<std::string>() + " ";
    EXPECT_EQ(shown, "单据类型 单号 开单日期 结算帐户 客户代码 客户简称 摘要 应结算金额 已结算金额 "
                     "经手人 部门 制单人 ");
}

TEST_F(OtherReceipts, show_who_approved_them_where_approval_is_in_use) {
    anna.inside([] { host::G_SK = "1"; });
    books.execute("UPDATE D651 SET T=1,SK='陈晓雯',SDATE='2024-03-07' WHERE NOID='Q1'");
    written_past_forms = true;
    anna.open(646);
    EXPECT_EQ(anna.rows()[0].at("SDATE"), "2024-03-07");
    EXPECT_EQ(anna.colors(0).at("SK").at("background"), 0xFFFF80);
    EXPECT_TRUE(anna.colors(1).is_null() || !anna.colors(1).contains("SK"));
    anna.click("Act_Modify");
    anna.expect_message("“Q1”已审核，不能修改或删除；如需更正，请先反审核!");
    anna.inside([] { host::G_SK = "0"; });
}

TEST_F(OtherReceipts, are_asked_for_by_customer_number_or_summary_dates_and_type) {
    anna.click("Act_Locate");
    anna.expect_active("TF6646F");
    EXPECT_EQ(anna.value("titDATE"), "(31天)");
    anna.set("KH_GYS_ID", "K1");
    EXPECT_EQ(ask(), heads + march + " AND (D651.KH_GYS_ID='K1')" + in_order);
    EXPECT_EQ(listed(), "Q1 ");
    EXPECT_EQ(anna.value("ConditionLabel"),
              " ●开单日期:(2024-03-01 至 2024-03-31)     ●客户代号:K1 常熟建材");
    anna.click("Act_Locate");
    anna.set("KH_GYS_ID", "");
    anna.set("NOID", "租'");
    EXPECT_EQ(ask(), heads + march +
                         " AND ((D651.noid like '%租''%') or (D651.ZY like '%租''%'))" + in_order);
    EXPECT_EQ(listed(), "");
    anna.click("Act_Locate");
    anna.set("NOID", "租金");
    anna.check("CK1");
    EXPECT_EQ(ask(), heads + march + " AND ((D651.noid='租金') or (D651.ZY='租金'))" + in_order);
    EXPECT_EQ(listed(), "Q2 ");
    anna.click("Act_Locate");
    anna.set("NOID", "");
    anna.set("CB1", "收款结算");
    anna.set("EDATE", "2024-04-01");
    EXPECT_EQ(ask(), heads + " WHERE (D651.BDATE>='2024-03-01') AND (D651.BDATE<'2024-04-02') AND "
                             "(c=0)" + in_order);
    EXPECT_EQ(listed(), "Q1 Q3 ");
    anna.click("Act_Locate");
    anna.set("CB1", "其他应收");
    EXPECT_EQ(ask(), heads + " WHERE (D651.BDATE>='2024-03-01') AND (D651.BDATE<'2024-04-02') AND "
                             "(c=1)" + in_order);
    EXPECT_EQ(listed(), "Q2 ");
}

TEST_F(OtherReceipts, are_deleted_with_their_lines_after_a_question) {
    anna.mark();
    anna.answer_next(true);
    anna.click("Act_Delete");
    anna.expect_question("确定要删除“Q1”吗？");
    EXPECT_EQ(batch_sent(), "delete from D651 Where NOID='Q1'");
    EXPECT_EQ(listed(), "Q2 ");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D651A WHERE NOID='Q1'"), "0");
}

TEST_F(OtherReceipts, that_a_receipt_wrote_off_are_not_deleted) {
    books.execute("INSERT INTO D631 (T,NOID,KH_GYS_ID,JY_KM,KM_ID,JY_ID,MONEY,MONEY_SS,BDATE,"
                  "USER_ID) VALUES (1,'R1','K2',0,'1001','1',20,20,'2024-03-08','admin');"
                  "INSERT INTO D631A (NOID,C,D651NOID,KH_GYS_ID,MONEY) VALUES "
                  "('R1',5,'Q2','K2',20)");
    anna.row(1);
    anna.click("Act_Delete");
    anna.expect_message("“Q2”不能删除：已有销售收款核销该单据!");
    anna.click("Act_Modify"); // what is still open may be changed
    EXPECT_EQ(anna.value("SUMMONEY"), "20.00");
    anna.cell(0, "MONEY", "100");
    anna.click("Act_Save");
    EXPECT_EQ(documents("D651").substr(documents("D651").find("Q2")),
              "Q2 1 100.00 20.00 80.00 0\nQ3 0 5.00 5.00 0.00 1");
}

} // namespace
} // namespace tests
