// The statements of other receipts and payments, to the letter.
#include "module/other_documents/other_document_statements.h"

#include <gtest/gtest.h>

namespace module {
namespace {

OtherDocumentHead head(bool open) {
    return {"646240305001", open, "K1", "Y1", "", "2", "2024-03-05", "罚'款", "anna", "70.00"};
}

TEST(OtherDocumentStatements, a_settled_receipt_is_born_with_its_total_settled) {
    EXPECT_EQ(insert_head(other_receipts, head(false)),
              "INSERT INTO D651 (C, NOID, KH_GYS_ID, YW_ID, BM_ID, JY_ID, BDATE, ZY, USER_ID, "
              "TOLMONEY,SUMMONEY) VALUES ('0','646240305001','K1','Y1','','2','2024-03-05',"
              "'罚''款','anna','70.00','70.00');");
}

TEST(OtherDocumentStatements, an_open_receipt_lies_on_account_0_with_nothing_settled) {
    EXPECT_EQ(insert_head(other_receipts, head(true)),
              "INSERT INTO D651 (C, NOID, KH_GYS_ID, YW_ID, BM_ID, JY_ID, BDATE, ZY, USER_ID, "
              "TOLMONEY,SUMMONEY) VALUES ('1','646240305001','K1','Y1','','0','2024-03-05',"
              "'罚''款','anna','70.00','0');");
    EXPECT_EQ(recompute_open_amount(other_receipts, "646240305001"),
              "UPDATE D651 SET YSMONEY=TOLMONEY-SUMMONEY WHERE NOID='646240305001';");
}

TEST(OtherDocumentStatements, a_change_settles_again_only_what_is_settled_at_once) {
    EXPECT_EQ(update_head(other_receipts, head(false)),
              "UPDATE d651 SET KH_GYS_ID='K1',BDATE='2024-03-05',JY_ID='2',bm_ID='',YW_ID='Y1',"
              "ZY='罚''款',TOLMONEY='70.00',sumMONEY='70.00',USER_ID='anna',C='0' WHERE "
              "noid='646240305001';");
    EXPECT_EQ(update_head(other_receipts, head(true)),
              "UPDATE d651 SET KH_GYS_ID='K1',BDATE='2024-03-05',JY_ID='2',bm_ID='',YW_ID='Y1',"
              "ZY='罚''款',TOLMONEY='70.00',USER_ID='anna',C='1' WHERE noid='646240305001';");
}

TEST(OtherDocumentStatements, lines_are_written_anew_by_category) {
    EXPECT_EQ(delete_lines(other_receipts, "N1"), "delete from  d651A WHERE NOID='N1';");
    EXPECT_EQ(insert_line(other_receipts, "N1", {"01", Amount::from_cents(7000), "利'息"}),
              "INSERT INTO D651A (NOID, SZLB, MONEY, NOTE, SZLB_CLASS)  VALUES ('N1','01','"
              "70.00','利''息',0);");
}

TEST(OtherDocumentStatements, payments_say_the_same_of_their_own_tables) {
    EXPECT_EQ(insert_head(other_payments, head(true)),
              "INSERT INTO D652 (C, NOID, KH_GYS_ID, YW_ID, BM_ID, JY_ID, BDATE, ZY, USER_ID, "
              "TOLMONEY,SUMMONEY) VALUES ('1','646240305001','K1','Y1','','0','2024-03-05',"
              "'罚''款','anna','70.00','0');");
    EXPECT_TRUE(update_head(other_payments, head(true)).starts_with("UPDATE D652 SET KH_GYS_ID='"));
    EXPECT_EQ(recompute_open_amount(other_payments, "N1"),
              "UPDATE D652 SET YSMONEY=TOLMONEY-SUMMONEY WHERE NOID='N1';");
    EXPECT_EQ(delete_lines(other_payments, "N1"), "delete from  D652A WHERE NOID='N1';");
    EXPECT_EQ(insert_line(other_payments, "N1", {"31", Amount::from_cents(-5), ""}),
              "INSERT INTO D652A (NOID, SZLB, MONEY, NOTE, SZLB_CLASS)  VALUES ('N1','31','"
              "-0.05','',0);");
}

TEST(OtherDocumentStatements, a_new_document_begins_with_every_category_of_its_kind) {
    EXPECT_EQ(select_blank_lines(other_receipts),
              "SELECT D6804.SZLB,D6804.SZLB_NAME,a.ID, a.NOID, a.NOTE,a.SZLB_CLASS, 0.00 as MONEY "
              "FROM D6804 LEFT OUTER JOIN (SELECT TOP 0 ID, NOID, SZLB, NOTE, SZLB_CLASS FROM "
              "D651A)a on D6804.SZLB = a.SZLB  where D6804.SZLB_CLASS=0");
    EXPECT_EQ(select_blank_lines(other_payments),
              "SELECT D6804.SZLB,D6804.SZLB_NAME,a.ID, a.NOID, a.NOTE,a.SZLB_CLASS, 0.00 as MONEY "
              "FROM D6804 LEFT OUTER JOIN (SELECT TOP 0 ID, NOID, SZLB, NOTE, SZLB_CLASS FROM "
              "D652A)a on D6804.SZLB = a.SZLB  where D6804.SZLB_CLASS=1");
}

TEST(OtherDocumentStatements, a_saved_document_is_read_by_its_number) {
    EXPECT_EQ(select_head(other_receipts, "N1"),
              "SELECT D651.*, SYS_USER.USER_NAME, D1102.KG_NAME, D1101.YW_NAME, D1008.BM_NAME,CASE "
              "D651.C WHEN 0 THEN '收款结算' else '其他应收' END AS C_NAME, CASE D1010.JY_ID WHEN "
              "'0' THEN '应收款帐户' ELSE D1010.JY_NAME END AS JY_NAME FROM D651 INNER JOIN "
              "SYS_USER ON D651.USER_ID = SYS_USER.USER_ID INNER JOIN D1010 ON D651.JY_ID = "
              "D1010.JY_ID LEFT JOIN D1102 ON D651.KH_GYS_ID = D1102.KH_GYS_ID LEFT JOIN D1101 ON "
              "D651.YW_ID = D1101.YW_ID LEFT JOIN D1008 ON D651.BM_ID = D1008.BM_ID  where "
              "d651.noid='N1'");
    EXPECT_EQ(select_lines(other_receipts, "N1"),
              "SELECT D651A.*, D6804.SZLB_NAME FROM D651A INNER JOIN D6804 ON D651A.SZLB = "
              "D6804.SZLB  WHERE (D651A.NOID ='N1') order by D651A.id ");
    EXPECT_TRUE(select_head(other_payments, "N1").ends_with(
        "LEFT JOIN D1103 ON D652.KH_GYS_ID = D1103.KH_GYS_ID LEFT JOIN D1101 ON D652.YW_ID = "
        "D1101.YW_ID LEFT JOIN D1008 ON D652.BM_ID = D1008.BM_ID  where D652.noid='N1'"));
}

} // namespace
} // namespace module
