// The statements of a receipt on one account, to the letter.
#include "tests/forms/settlement/settlement_desk.h"

namespace tests {
namespace {

class Receipt : public SettlementDesk {
protected:
    Receipt() : SettlementDesk(receipts) {}
};

TEST_F(Receipt, reads_the_customer_and_what_stands_open) {
    anna.open(631);
    anna.click("Act_Add");
    anna.set("Edit1", "A7");
    anna.mark();
    anna.set("KH_GYS_ID", "K1");
    anna.focus("PH");
    EXPECT_EQ(anna.sent_texts(),
              (std::vector<std::string>{
                  "SELECT NOID FROM d631 WHERE NOID='A7'",
                  "SELECT B.KH_GYS_ID, B.KG_NAME, A.YM, A.YSM, A.XJYS FROM VD631 A RIGHT OUTER "
                  "JOIN D1102 B ON A.KH_GYS_ID = B.KH_GYS_ID WHERE B.KH_GYS_ID='K1';",
                  "SELECT NOID,C,CASE C WHEN 2 THEN '期初应收' ELSE NOID END AS D8102NOID, "
                  "CASE C WHEN 2 THEN '期初应收' ELSE '销售单' END AS C_NAME, "
                  "BDATE,TOLMONEY,SUMMONEY,REMONEY,YSMONEY AS MONEY FROM D8102 "
                  "WHERE (C < 3) AND (D8102.KH_GYS_ID='K1') AND (YSMONEY>0) "
                  "UNION ALL SELECT NOID,5,NOID,'其他应收', "
                  "BDATE,TOLMONEY,SUMMONEY,0.00,YSMONEY AS MONEY "
                  "FROM D651 WHERE (KH_GYS_ID='K1') AND (YSMONEY<>0)  "
                  "UNION ALL SELECT NOID, 6, NOID, '销售退回' AS C_NAME, BDATE, 0-TOLMONEY, "
                  "0-SUMMONEY, 0, 0-YSMONEY AS MONEY "
                  "FROM D8103 WHERE (JY_ID = '0') AND (YSMONEY>0) AND  (KH_GYS_ID='K1') "
                  "ORDER BY BDATE,C,D8102.NOID "}));
}

TEST_F(Receipt, a_new_one_writes_the_head_and_a_line_an_item) {
    new_document();
    pay("80000", "120");
    anna.set("BDATE", "2024-03-14");
    anna.set("PH", "工行0628'4417");
    anna.set("JY_ID", "2");
    anna.cell(4, "MONEY", "4969");
    anna.cell(5, "MONEY", "1000");
    anna.click("Act_Save");
    EXPECT_EQ(last_batch(),
              "INSERT INTO D631 (T, NOID,KH_GYS_ID, JY_KM, KM_ID, JY_ID, "
              "MONEY_SS,MONEY_YH,MONEY,BDATE, EDATE, PH, USER_ID) values "
              "(1,'631240315001','K1','0','1001','2','80000','120',(80000+120),"
              "'2024-03-14',NULL,'工行0628''4417','admin');"
              "INSERT INTO D631A (NOID,C,D8102NOID,KH_GYS_ID, MONEY) VALUES "
              "('631240315001','2','初K1','K1','           3600.00');"
              "INSERT INTO D631A (NOID,C,D8102NOID,KH_GYS_ID, MONEY) VALUES "
              "('631240315001','0','S1','K1','          46800.00');"
              "INSERT INTO D631A (NOID,C,D8102NOID,KH_GYS_ID, MONEY) VALUES "
              "('631240315001','0','S2','K1','          27261.00');"
              "INSERT INTO D631A (NOID,C,D8103NOID,KH_GYS_ID, MONEY) VALUES "
              "('631240315001','6','T1','K1','          -3510.00');"
              "INSERT INTO D631A (NOID,C,D8102NOID,KH_GYS_ID, MONEY) VALUES "
              "('631240315001','0','S3','K1','           4969.00');"
              "INSERT INTO D631A (NOID,C,D651NOID,KH_GYS_ID, MONEY) VALUES "
              "('631240315001','5','Q1','K1','           1000.00');");
    const auto sent = anna.sent();
    const auto saved = std::find_if(sent.begin(), sent.end(),
                                    [](const auto& one) { return one.call == "ExecSql"; });
    EXPECT_EQ(saved->function + " " + saved->key + " " + saved->operation,
              "631 631240315001 Add");
    EXPECT_EQ(settled("D651", "Q1"), "1000.00 280.00");
    EXPECT_EQ(settled("D8103", "T1"), "3510.00 0.00");
}

TEST_F(Receipt, a_changed_one_keeps_its_number_and_writes_its_lines_anew) {
    new_document("K2");
    pay("1500");
    save();
    anna.click("Act_Modify");
    pay("1200", "5.5");
    anna.mark();
    anna.click("Act_Save");
    EXPECT_EQ(last_batch(),
              "UPDATE D631 SET edate=getdate(), KH_GYS_ID='K2',JY_KM='0',BDATE='2024-03-15',"
              "JY_ID='1',KM_ID='1001',PH='',MONEY_SS='1200',MONEY_YH='5.5',"
              "MONEY=(1200+5.5),USER_ID='admin' WHERE noid='631240315001';"
              "delete from  D631A WHERE NOID='631240315001';"
              "INSERT INTO D631A (NOID,C,D8102NOID,KH_GYS_ID, MONEY) VALUES "
              "('631240315001','0','U1','K2','           1000.00');"
              "INSERT INTO D631A (NOID,C,D8102NOID,KH_GYS_ID, MONEY) VALUES "
              "('631240315001','0','U2','K2','            205.50');");
    EXPECT_EQ(document("U2"), "205.50 1794.50");
}

TEST_F(Receipt, an_advance_writes_the_head_alone_a_blank_discount_as_0) {
    new_document();
    anna.set("CB1", "预收款");
    pay("700");
    anna.mark();
    anna.click("Act_Save");
    EXPECT_EQ(last_batch(),
              "INSERT INTO D631 (T, NOID,KH_GYS_ID, JY_KM, KM_ID, JY_ID, "
              "MONEY_SS,MONEY_YH,MONEY,BDATE, EDATE, PH, USER_ID) values "
              "(1,'631240315001','K1','1','1001','1','700','0',(700+0),"
              "'2024-03-15',NULL,'','admin');");
}

TEST_F(Receipt, an_advance_reads_the_customer_again_before_it_is_saved) {
    new_document();
    anna.set("CB1", "预收款");
    pay("700");
    anna.focus("PH");
    anna.mark();
    anna.click("Act_Save");
    EXPECT_EQ(anna.sent_texts().front().substr(0, 27), "SELECT B.KH_GYS_ID, B.KG_NA");
}

TEST_F(Receipt, is_read_by_its_number) {
    new_document("K2");
    pay("1000");
    save();
    anna.mark();
    anna.click("Act_Modify");
    const auto sent = anna.sent_texts();
    const std::string head =
        "SELECT D631.*, D1102.KG_NAME, D1010.JY_NAME, SYS_USER.USER_NAME,CASE JY_KM WHEN 0 THEN "
        "'应收帐款' WHEN 1 THEN '预收款' WHEN 2 THEN '预收退款' WHEN 3 THEN '预收冲应收' END AS "
        "JY_KM_NAME FROM D631 INNER JOIN D1102 on D631.KH_GYS_ID = D1102.KH_GYS_ID INNER JOIN "
        "D1010 on D631.JY_ID = D1010.JY_ID INNER JOIN SYS_USER on D631.USER_ID = "
        "SYS_USER.USER_ID where d631.noid='631240315001'";
    EXPECT_NE(std::find(sent.begin(), sent.end(), head), sent.end());
}

TEST_F(Receipt, the_columns_of_the_open_items) {
    new_document();
    std::string summed;
    for (const char* field : {"TOLMONEY", "SUMMONEY", "REMONEY", "MONEY"})
        summed += anna.footer(field) + " ";
    EXPECT_EQ(columns(true), "C_NAME 单据类型,D8102NOID 单号,BDATE 开单日期,TOLMONEY 应收款,"
                     "SUMMONEY 累计收款,REMONEY 累计退款,MONEY 本次收款,");
    EXPECT_EQ(columns(false), "NOID 销售单号,C 类型,COLORVALUE 颜色,");
    EXPECT_EQ(summed, "129251.00 0.00 1170.00 128081.00 ");
}

} // namespace
} // namespace tests
