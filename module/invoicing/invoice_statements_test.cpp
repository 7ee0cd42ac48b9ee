// The statements of sales documents and of imported receipts, to the letter.
#include "module/invoicing/invoice_statements.h"

#include <gtest/gtest.h>

#include "host/contract/U_glo.h"
#include "module/invoicing/import_statements.h"

namespace module {
namespace {

Amount number(const char* text) { return *Amount::parse(text); }

InvoiceHead head() {
    return {"S9", "K1", "1", "2016-05-05", "1", "y1", "u1", "急", "99.90", "90", "9.9"};
}

// The display formats of quantities, prices and amounts as a test wants them.
class InvoiceStatements : public testing::Test {
protected:
    InvoiceStatements() { set("0.000", "0.0000", "0.00"); }
    ~InvoiceStatements() override { set("0.00", "0.00", "0.00"); }
    static void set(const char* quantity, const char* price, const char* amount) {
        host::G_QtyFormat = quantity;
        host::G_PriceFormat = price;
        host::G_AmountFormat = amount;
    }
};

TEST_F(InvoiceStatements, a_new_document_is_open_with_its_total) {
    EXPECT_EQ(insert_invoice(head(), "1"),
              "INSERT INTO D8102(C,T,NOID,KH_GYS_ID,CK_ID, BDATE, SEND_ID,YW_ID, USER_ID, "
              "NOTE,TOLMONEY,YSMONEY,BQMONEY,YHMONEY) VALUES (0,'1','S9','K1','1','2016-05-05',"
              "'1','y1','u1','急','99.90','99.90','90','9.9');");
}

TEST_F(InvoiceStatements, a_change_takes_back_its_lines_and_the_receipt_it_made) {
    EXPECT_EQ(update_invoice(head()),
              "UPDATE D8102 SET EDATE=GETDATE(), KH_GYS_ID='K1',CK_ID='1',BDATE='2016-05-05',"
              "SEND_ID='1',YW_ID='y1',USER_ID='u1',NOTE='急',YSMONEY=99.90-summoney-remoney,"
              "TOLMONEY='99.90',BQMONEY='90',YHMONEY='9.9' WHERE noid='S9';"
              "delete from d631 WHERE NOID='S9SYS';delete from  d8102A WHERE NOID='S9';");
}

TEST_F(InvoiceStatements, lines_count_from_1000_in_the_decimals_of_the_books) {
    const InvoiceLine line{"", "-1", "W1", "3", number("3"), number("0"), number("3"), number("1"),
                           number("33.3"), number("99.9"), number("20"), number("60"), ""};
    InvoiceLine ordered = line;
    ordered.order = "D1";
    ordered.order_line = "O1";
    ordered.unit = "";
    ordered.note = "a'b";
    const std::string beginning =
        "INSERT INTO D8102A(D8101AID,NOID,WL_ID,ADW,CK_ID,SL,DW_J,DW_L,DW_ZH,SJ,SMONEY, DJ, "
        "MONEY, NOTE,ID)  VALUES (";
    const std::string figures =
        ",'1','             3.000','             0.000','             3.000',"
        "'             1.000','           33.3000','             99.90','           20.0000',"
        "'             60.00',";
    EXPECT_EQ(insert_invoice_lines(head(), {line, ordered}),
              beginning + "NULL,'S9','W1',3" + figures + "'','S9-1000');" + beginning +
                  "'O1','S9','W1',NULL" + figures + "'a''b','S9-1001');");
}

TEST_F(InvoiceStatements, money_taken_at_once_makes_a_receipt_that_writes_the_document_off) {
    EXPECT_EQ(insert_counter_receipt(head()),
              "INSERT INTO D631 (T, NOID,KH_GYS_ID, JY_KM, KM_ID, JY_ID, MONEY_SS,MONEY_YH,MONEY,"
              "BDATE, EDATE, PH, USER_ID) values (1,'S9SYS','K1','0','1001','1','90','9.9',"
              "(90+9.9),'2016-05-05',NULL,'','u1');"
              "INSERT INTO D631A (NOID,C,D8102NOID,KH_GYS_ID, MONEY) VALUES ('S9SYS','0','S9',"
              "'K1',(90+9.9));");
}

TEST_F(InvoiceStatements, what_is_settled_follows_from_all_lines_that_name_the_document) {
    EXPECT_EQ(recompute_settlement("S1"),
              "IF NOT EXISTS (SELECT * FROM D631A where (D8102NOID = 'S1')) UPDATE d8102 set "
              "sumMONEY =0 WHERE (d8102.NOID= 'S1')ELSE update d8102 set sumMONEY = t.money FROM "
              "(SELECT D8102NOID, ISNULL(SUM(MONEY),0) AS MONEY FROM D631A where(D8102NOID = "
              "'S1') GROUP BY D8102NOID   )  t where d8102.NOID= t.D8102NOID; update D8102 set "
              "ysmoney=tolmoney-remoney-summoney  WHERE (d8102.NOID= 'S1')");
}

TEST_F(InvoiceStatements, the_customer_is_read_with_his_route_and_salesman) {
    EXPECT_EQ(select_customer("K1"),
              "SELECT D1102.TEL,D1102.ADDR,D1011.SEND_ID,D1011.SEND_NAME,D1101.YW_NAME, "
              "D1101.YW_ID FROM D1102 INNER JOIN D1011 ON D1102.SEND_ID = D1011.SEND_ID LEFT "
              "OUTER JOIN D1101 ON D1102.KM_IDA = D1101.YW_ID WHERE D1102.KH_GYS_ID='K1'");
    EXPECT_EQ(mark_printed("S1"), "UPDATE D8102 SET T_PRINT='*' WHERE NOID='S1';");
}

TEST_F(InvoiceStatements, an_imported_receipt_writes_off_each_document_in_full) {
    EXPECT_EQ(insert_imported_line("R9", "S1", "K1", number("650")),
              "INSERT INTO D631A (NOID,C,T,D8102NOID,KH_GYS_ID, MONEY) VALUES ('R9',0,1,'S1','K1',"
              "'            650.00');");
    EXPECT_EQ(insert_imported_head({"R9", "K1", "1", "2016-05-06", "", "u1", number("650")}),
              "INSERT INTO D631 (T, NOID,KH_GYS_ID, JY_KM, KM_ID, JY_ID, MONEY_SS,MONEY_YH,MONEY,"
              "BDATE, EDATE, PH, USER_ID) values (0,'R9','K1','0','1001','1','650.00','0',"
              "'650.00','2016-05-06',NULL,'','u1');");
}

} // namespace
} // namespace module
