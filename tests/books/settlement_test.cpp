// What is settled and open of a document follows its write-off lines, whatever happens to them.
#include "tests/books/trade_fixture.h"

namespace tests {

using Settlement = Trade;

TEST_F(Settlement, write_off_lines_settle_the_documents_they_name) {
    EXPECT_EQ(settled("D8102", "S1"), "430.00 520.00"); // 1000 - 50 - 430
    EXPECT_EQ(settled("D8102", "S2"), "100.00 200.00");
    EXPECT_EQ(settled("D8102", "初K1"), "100.00 100.00");
    EXPECT_EQ(settled("D8102", "预K1"), "0.00 80.00");
    EXPECT_EQ(settled("D8103", "T1"), "20.00 20.00"); // a return is written off negative
    EXPECT_EQ(settled("D651", "Q1"), "0.00 120.00");
}

TEST_F(Settlement, a_line_of_another_receivable_settles_it) {
    run("INSERT INTO D631A (NOID,C,D651NOID,KH_GYS_ID,MONEY) VALUES ('R1',5,'Q1','K1',120)");
    EXPECT_EQ(settled("D651", "Q1"), "120.00 0.00");
}

TEST_F(Settlement, a_line_moved_to_another_document_opens_the_one_and_settles_the_other) {
    run("UPDATE D631A SET D8102NOID='S2' WHERE NOID='R1' AND D8102NOID='S1'");
    EXPECT_EQ(settled("D8102", "S1"), "0.00 950.00");
    EXPECT_EQ(settled("D8102", "S2"), "530.00 -230.00");
}

TEST_F(Settlement, the_statements_of_the_invoicing_form_find_nothing_to_change) {
    run("IF NOT EXISTS (SELECT * FROM D631A where (D8102NOID = 'S1')) UPDATE d8102 set sumMONEY =0 "
        "WHERE (d8102.NOID= 'S1')ELSE update d8102 set sumMONEY = t.money FROM (SELECT D8102NOID, "
        "ISNULL(SUM(MONEY),0) AS MONEY FROM D631A where(D8102NOID = 'S1') GROUP BY D8102NOID   )  "
        "t where d8102.NOID= t.D8102NOID; update D8102 set ysmoney=tolmoney-remoney-summoney  "
        "WHERE (d8102.NOID= 'S1')");
    EXPECT_EQ(settled("D8102", "S1"), "430.00 520.00");
}

TEST_F(Settlement, a_receipt_that_goes_takes_its_lines_and_reopens_what_it_settled) {
    run("INSERT INTO D651A (D631NOID,SZLB,MONEY,SZLB_CLASS) VALUES ('R1','01',5,0)");
    run("delete from d631 Where NOID='R1'");
    EXPECT_EQ(settled("D8102", "S1"), "0.00 950.00");
    EXPECT_EQ(settled("D8102", "初K1"), "0.00 200.00");
    EXPECT_EQ(settled("D8103", "T1"), "0.00 40.00");
    EXPECT_EQ(value("SELECT COUNT(*) FROM D631A WHERE NOID='R1'"), "0");
    EXPECT_EQ(value("SELECT COUNT(*) FROM D631B WHERE NOID='R1'"), "0");
    EXPECT_EQ(value("SELECT COUNT(*) FROM D651A WHERE D631NOID='R1'"), "0");
}

TEST_F(Settlement, a_payment_settles_and_reopens_purchases_the_same_way) {
    run("INSERT INTO D8202 (NOID,KH_GYS_ID,BDATE,USER_ID,TOLMONEY,YSMONEY) VALUES "
        "('C1','G1','2024-03-02','admin',60,60);"
        "INSERT INTO D641A (NOID,C,D8202NOID,KH_GYS_ID,MONEY) VALUES ('P1',0,'C1','G1',60)");
    EXPECT_EQ(settled("D8202", "C1"), "60.00 0.00");
    run("delete from d641 Where NOID='P1'");
    EXPECT_EQ(settled("D8202", "C1"), "0.00 60.00");
}

TEST_F(Settlement, lines_may_come_before_their_head) {
    run("INSERT INTO D631A (NOID,C,T,D8102NOID,KH_GYS_ID,MONEY) VALUES ('R9',0,1,'S2','K1',200);"
        "INSERT INTO D631 (T,NOID,KH_GYS_ID,JY_KM,KM_ID,JY_ID,MONEY_SS,MONEY_YH,MONEY,BDATE,"
        "USER_ID) VALUES (0,'R9','K1','0','1001','1','200','0','200','2024-03-30','admin')");
    EXPECT_EQ(settled("D8102", "S2"), "300.00 0.00");
}

TEST_F(Settlement, a_document_in_base_currency_shows_its_total_in_the_foreign_column_too) {
    EXPECT_EQ(value("SELECT TOLSMONEY FROM D8102 WHERE NOID='S1'"), "1000.00");
    run("UPDATE D8102 SET TOLMONEY=1100 WHERE NOID='S1'");
    EXPECT_EQ(value("SELECT TOLSMONEY FROM D8102 WHERE NOID='S1'"), "1100.00");
    run("INSERT INTO D8102 (NOID,KH_GYS_ID,BDATE,USER_ID,HB_ID,HL,TOLSMONEY,TOLMONEY) VALUES "
        "('S9','K1','2024-03-02','admin','US',6.5,100,650)");
    EXPECT_EQ(value("SELECT TOLSMONEY FROM D8102 WHERE NOID='S9'"), "100.00");
}

} // namespace tests
