// The list of receipts in any currency.
#include "tests/forms/settlement/settlement_desk.h"

namespace tests {
namespace {

class CurrencyReceiptsListed : public SettlementDesk {
protected:
    CurrencyReceiptsListed() : SettlementDesk(currency_receipts) {
        books.execute("INSERT INTO D6804 (SZLB_CLASS,SZLB,SZLB_NAME,KM_ID) VALUES "
                      "(0,'01','租金','5102');");
    }
    void head(const std::string& number, const std::string& discount) {
        books.execute("INSERT INTO D631 (NOID,KH_GYS_ID,JY_ID,MONEY,MONEY_SS,MONEY_YH,BDATE,PH,"
                      "USER_ID) VALUES ('" + number + "','K1','1',100+" + discount + ",100," +
                      discount + ",'2024-03-10','票9','admin');"
                      "INSERT INTO D631A (NOID,C,D8102NOID,KH_GYS_ID,MONEY) VALUES ('" + number +
                      "',0,'S1','K1',100+" + discount + ");");
    }
};

TEST_F(CurrencyReceiptsListed, the_columns_in_their_order) {
    anna.open(630);
    std::string titles;
    const auto grid = anna.control("DBGridEh");
    for (const auto& column : grid["columns"])
        titles += column["title"].get<std::string>() + ",";
    EXPECT_EQ(titles, "单号,开单日期,客户代号,客户简称,类型代号,收款类型,货币,汇率,收款金额|外币,"
                      "收款金额|本位币,其他应收,票号,最后更改,用户号,开单,");
    EXPECT_EQ(anna.caption(), "销售收款");
}

TEST_F(CurrencyReceiptsListed, heads_and_lines_are_read_with_their_currency) {
    head("A1", "0");
    anna.open(630);
    const auto sent = anna.sent_texts();
    const std::string heads =
        "SELECT D631.*, D1102.KG_NAME, D1010.JY_NAME, SYS_USER.USER_NAME,D1013.HB_NAME, CASE JY_KM "
        "WHEN 0 THEN '应收帐款' WHEN 1 THEN '预收款' WHEN 2 THEN '预收退款' WHEN 3 THEN "
        "'预收冲应收' END AS JY_KM_NAME FROM D631 INNER JOIN D1102 on D631.KH_GYS_ID = "
        "D1102.KH_GYS_ID INNER JOIN D1010 on D631.JY_ID = D1010.JY_ID INNER JOIN D1013 ON "
        "D631.HB_ID = D1013.HB_ID INNER JOIN SYS_USER on D631.USER_ID = SYS_USER.USER_ID "
        "WHERE (D631.BDATE>='2024-03-01') AND (D631.BDATE<'2024-04-01') "
        "ORDER BY D631.BDATE,D631.NOID";
    EXPECT_NE(std::find(sent.begin(), sent.end(), heads), sent.end());
    EXPECT_EQ(anna.rows()[0].at("HB_NAME"), "RMB");
    EXPECT_EQ(anna.rows()[0].at("HL"), "1");
    EXPECT_EQ(anna.footer("MONEY"), "100.00");
    const Rows lines = anna.rows("DBGridEhLine");
    ASSERT_EQ(lines.size(), 2u); // the income category stands there too
    EXPECT_EQ(lines[0].at("C_NAME"), "其他应收-租金");
    EXPECT_EQ(lines[1].at("MONEY"), "100.00");
}

TEST_F(CurrencyReceiptsListed, the_dialog_looks_in_the_numbers_alone) {
    head("A1", "0");
    anna.open(630);
    anna.key("F3");
    anna.expect_active("TF6630F");
    anna.set("NOID", "A");
    anna.mark();
    anna.click("btn_ok");
    EXPECT_NE(anna.sent_texts().front().find(" AND ((D631.noid like '%A%'))"), std::string::npos);
    EXPECT_EQ(anna.row_count(), 1);
}

TEST_F(CurrencyReceiptsListed, a_receipt_with_discount_or_returns_is_changed_where_it_was_made) {
    head("A1", "5");
    head("A2", "0");
    books.execute("INSERT INTO D631A (NOID,C,D8103NOID,KH_GYS_ID,MONEY) VALUES "
                  "('A2',6,'T1','K1',-10);"
                  "UPDATE D631A SET MONEY=110 WHERE NOID='A2' AND C=0");
    anna.open(630);
    for (int row : {0, 1}) {
        anna.row(row);
        anna.click("Act_Modify");
        anna.expect_message("“A" + std::to_string(row + 1) +
                            "”含有优惠或销售退回，请在“销售收款”（功能 631）中修改!");
        EXPECT_TRUE(anna.control("PH")["readOnly"].get<bool>());
        EXPECT_TRUE(anna.control("cd_jy")["readOnly"].get<bool>());
        anna.close();
    }
    EXPECT_EQ(anna.rows("DBGridEhLine")[2].at("C_NAME"), "销售退回");
    anna.answer_next(true);
    anna.click("Act_Delete");
    anna.expect_question("确定要删除“A2”吗？");
    EXPECT_EQ(settled("D8103", "T1"), "0.00 3510.00");
}

TEST_F(CurrencyReceiptsListed, what_a_sale_made_is_not_changed_here) {
    head("S1SYS", "0");
    anna.open(630);
    for (const char* act : {"Act_Modify", "Act_Delete"}) {
        anna.click(act);
        anna.expect_message("单号以SYS结尾是由 销售开单  模块自动生成，不可以进行任何更改，"
                            "如果更改，请从销售开单进行更改。");
    }
}

} // namespace
} // namespace tests
