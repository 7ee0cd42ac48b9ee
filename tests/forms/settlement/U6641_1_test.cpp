// The statements of a payment on one account, to the letter.
#include "tests/forms/settlement/settlement_desk.h"

namespace tests {
namespace {

class Payment : public SettlementDesk {
protected:
    Payment() : SettlementDesk(payments) {}
};

TEST_F(Payment, reads_the_supplier_and_what_stands_open) {
    anna.open(641);
    anna.click("Act_Add");
    anna.set("Edit1", "A7");
    anna.mark();
    anna.set("KH_GYS_ID", "K1");
    anna.focus("PH");
    EXPECT_EQ(anna.sent_texts(),
              (std::vector<std::string>{
                  "SELECT NOID FROM d641 WHERE NOID='A7'",
                  "SELECT B.KH_GYS_ID, B.KG_NAME, A.YM, A.YSM, A.XJYS FROM VD641 A RIGHT OUTER "
                  "JOIN D1103 B ON A.KH_GYS_ID = B.KH_GYS_ID WHERE B.KH_GYS_ID='K1';",
                  "SELECT NOID,C,CASE C WHEN 2 THEN '期初应付' ELSE NOID END AS D8202NOID, "
                  "CASE C WHEN 2 THEN '期初应付' ELSE '采购进货' END AS C_NAME, "
                  "BDATE,TOLMONEY,SUMMONEY,REMONEY,YSMONEY AS MONEY FROM D8202 "
                  "WHERE (C < 3) AND (D8202.KH_GYS_ID='K1') AND (YSMONEY>0) "
                  "UNION ALL SELECT NOID,5,NOID,'其他应付', "
                  "BDATE,TOLMONEY,SUMMONEY,0.00,YSMONEY AS MONEY "
                  "FROM D652 WHERE (KH_GYS_ID='K1') AND (YSMONEY<>0)  "
                  "UNION ALL SELECT NOID, 6, NOID, '采购退回' AS C_NAME, BDATE, 0-TOLMONEY, "
                  "0-SUMMONEY, 0, 0-YSMONEY AS MONEY "
                  "FROM D8203 WHERE (JY_ID = '0') AND (YSMONEY>0) AND  (KH_GYS_ID='K1')"
                  "ORDER BY BDATE,C,D8202.NOID "}));
}

TEST_F(Payment, a_new_one_writes_the_head_and_a_line_an_item) {
    new_document();
    pay("74151", "1280"); // 3600 + 46800 + 27261 - 3510 + 1280
    anna.cell(2, "MONEY", "27261");
    anna.cell(3, "MONEY", "-3510");
    anna.cell(5, "MONEY", "1280");
    anna.click("Act_Save");
    EXPECT_EQ(last_batch(),
              "INSERT INTO D641 (T, NOID, KH_GYS_ID, JY_KM, KM_ID, JY_ID,  "
              "MONEY_SS,MONEY_YH,MONEY, BDATE, EDATE, PH, USER_ID) values "
              "(1,'641240315001','K1','0','1001','1','74151','1280',(74151+1280),"
              "'2024-03-15',NULL,'','admin');"
              "INSERT INTO D641A (NOID,C,D8202NOID,KH_GYS_ID, MONEY) VALUES "
              "('641240315001','2','初K1','K1','           3600.00');"
              "INSERT INTO D641A (NOID,C,D8202NOID,KH_GYS_ID, MONEY) VALUES "
              "('641240315001','0','S1','K1','          46800.00');"
              "INSERT INTO D641A (NOID,C,D8202NOID,KH_GYS_ID, MONEY) VALUES "
              "('641240315001','0','S2','K1','          27261.00');"
              "INSERT INTO D641A (NOID,C,D8203NOID,KH_GYS_ID, MONEY) VALUES "
              "('641240315001','6','T1','K1','          -3510.00');"
              "INSERT INTO D641A (NOID,C,D652NOID,KH_GYS_ID, MONEY) VALUES "
              "('641240315001','5','Q1','K1','           1280.00');");
    EXPECT_EQ(settled("D652", "Q1"), "1280.00 0.00");
}

TEST_F(Payment, a_changed_one_keeps_its_number_and_writes_its_lines_anew) {
    new_document("K2");
    pay("1000");
    save();
    anna.click("Act_Modify");
    pay("400", "5");
    anna.mark();
    anna.click("Act_Save");
    EXPECT_EQ(last_batch(),
              "UPDATE D641 SET edate=getdate(), KH_GYS_ID='K2',JY_KM='0',BDATE='2024-03-15',"
              "JY_ID='1',KM_ID='1001',PH='',MONEY_SS='400',MONEY_YH='5',"
              "MONEY=(400+5),USER_ID='admin' WHERE noid='641240315001';"
              "delete from  D641A WHERE NOID='641240315001';"
              "INSERT INTO D641A (NOID,C,D8202NOID,KH_GYS_ID, MONEY) VALUES "
              "('641240315001','0','U1','K2','            405.00');");
}

TEST_F(Payment, an_amount_owed_to_the_company_is_offered_whatever_its_sign) {
    books.execute("INSERT INTO D652 (NOID,C,KH_GYS_ID,JY_ID,BDATE,USER_ID,TOLMONEY,YSMONEY) "
                  "VALUES ('Q9',1,'K2','0','2024-03-01','admin',-80,-80)");
    new_document("K2");
    EXPECT_EQ(shares(), "-80.00 1000.00 2000.00");
    pay("100");
    EXPECT_EQ(shares(), "-80.00 180.00 0.00");
    save();
    EXPECT_EQ(settled("D652", "Q9"), "-80.00 0.00");
}

TEST_F(Payment, is_read_by_its_number) {
    new_document("K2");
    pay("1000");
    save();
    anna.mark();
    anna.click("Act_Modify");
    const auto sent = anna.sent_texts();
    const std::string head =
        "SELECT D641.*, D1103.KG_NAME, D1010.JY_NAME, SYS_USER.USER_NAME, CASE JY_KM WHEN 0 THEN "
        "'应付帐款' WHEN 1 THEN '预付款' WHEN 2 THEN '预付退款' WHEN 3 THEN '预付冲应付' END AS "
        "JY_KM_NAME FROM D641 INNER JOIN D1103 on D641.KH_GYS_ID = D1103.KH_GYS_ID INNER JOIN "
        "D1010 on D641.JY_ID = D1010.JY_ID INNER JOIN SYS_USER on D641.USER_ID = "
        "SYS_USER.USER_ID where d641.noid='641240315001'";
    EXPECT_NE(std::find(sent.begin(), sent.end(), head), sent.end());
}

TEST_F(Payment, the_columns_of_the_open_items) {
    new_document();
    EXPECT_EQ(columns(true), "C_NAME 单据类型,D8202NOID 单号,BDATE 开单日期,TOLMONEY 应付款,"
                     "SUMMONEY 累计付款,REMONEY 累计退款,MONEY 本次付款,");
    EXPECT_EQ(columns(false), "NOID 采购单号,C 类型,COLORVALUE 颜色,");
}

} // namespace
} // namespace tests
