// What the sales document asks of the books, and what it writes into them.
#include "module/invoicing/invoice_statements.h"

#include "host/contract/U_function.h"
#include "host/contract/U_glo.h"
#include "host/values/sql_text.h"
#include "module/invoicing/invoice_line.h"

namespace module {

namespace {

constexpr int first_line_key = 1000;

std::string number_text(Amount value, const std::string& format) {
    return quoted(FormatAmount(value, decimals_of(format)));
}

std::string insert_line(const InvoiceHead& head, const InvoiceLine& line, int key) {
    const std::string order_line = line.order.empty() ? "NULL" : quoted(line.order_line);
    const std::string unit = line.unit.empty() ? "NULL" : line.unit;
    return "INSERT INTO D8102A(D8101AID,NOID,WL_ID,ADW,CK_ID,SL,DW_J,DW_L,DW_ZH,SJ,SMONEY, DJ, "
           "MONEY, NOTE,ID)  VALUES (" +
           order_line + "," + quoted(head.number) + "," + quoted(line.good) + "," + unit + "," +
           quoted(head.warehouse) + "," + number_text(line.quantity, G_QtyFormat) + "," +
           number_text(line.pieces, G_QtyFormat) + "," + number_text(line.rest, G_QtyFormat) +
           "," + number_text(line.conversion, G_QtyFormat) + "," +
           number_text(line.price, G_PriceFormat) + "," +
           number_text(line.amount, G_AmountFormat) + "," +
           number_text(line.cost_price, G_PriceFormat) + "," +
           number_text(line.cost, G_AmountFormat) + "," + quoted(line.note) + "," +
           quoted(head.number + "-" + std::to_string(key)) + ");";
}

} // namespace

// ---- reading ----

std::string select_customer(const std::string& customer) {
    return "SELECT D1102.TEL,D1102.ADDR,D1011.SEND_ID,D1011.SEND_NAME,D1101.YW_NAME, D1101.YW_ID "
           "FROM D1102 INNER JOIN D1011 ON D1102.SEND_ID = D1011.SEND_ID LEFT OUTER JOIN D1101 ON "
           "D1102.KM_IDA = D1101.YW_ID WHERE D1102.KH_GYS_ID=" +
           quoted(customer);
}

std::string select_invoice_head(const std::string& number) {
    return "SELECT D8102.*, D1102.KG_NAME, D1102.FULL_NAME, D1102.TEL, D1102.ADDR, D1007.CK_NAME, "
           "D1011.SEND_NAME, D1101.YW_NAME, SYS_USER.USER_NAME FROM D8102 INNER JOIN D1102 ON "
           "D8102.KH_GYS_ID = D1102.KH_GYS_ID LEFT JOIN SYS_USER ON D8102.USER_ID = "
           "SYS_USER.USER_ID LEFT JOIN D1007 ON D8102.CK_ID = D1007.CK_ID LEFT JOIN D1011 ON "
           "D8102.SEND_ID = D1011.SEND_ID LEFT JOIN D1101 ON D8102.YW_ID = D1101.YW_ID where "
           "d8102.noid=" +
           quoted(number);
}

std::string select_invoice_lines(const std::string& number) {
    return "SELECT D8102A.WL_ID, D1801.WL_NAME, D1801.WL_GG, D1003.DW_NAME, D8102A.SL, "
           "D8102A.DW_J, D8102A.DW_L, D8102A.SJ, D8102A.SMONEY, D8102A.DJ, D8102A.MONEY, "
           "D8102A.SL_RETURN, D8102A.NOTE, D1801DW.TM, D8101A.NOID, D8102A.D8101AID, "
           "D8102A.ADW, D1801DW.DW_ID, D8102A.DW_ZH FROM D8102A LEFT JOIN D1801 ON "
           "D8102A.WL_ID = D1801.WL_ID LEFT JOIN D1801DW ON D8102A.ADW = D1801DW.ADW LEFT JOIN "
           "D1003 ON D1801DW.DW_ID = D1003.DW_ID LEFT JOIN D8101A ON D8102A.D8101AID = D8101A.ID "
           "WHERE (D8102A.NOID =" +
           quoted(number) + ") order by D8102A.id ";
}

std::string select_invoices() {
    return "SELECT D8102.NOID, D8102.BDATE, D1102.KG_NAME, D8102.TOLMONEY FROM D8102 INNER JOIN "
           "D1102 ON D8102.KH_GYS_ID = D1102.KH_GYS_ID WHERE (D8102.C=0) ORDER BY D8102.BDATE "
           "DESC, D8102.NOID DESC";
}

std::string select_goods() {
    return "SELECT D1801.WL_ID, D1801.WL_NAME, D1801.WL_GG, D1801DW.ADW, D1801DW.DW_ID, "
           "D1003.DW_NAME, D1801DW.TM FROM D1801 LEFT JOIN D1801DW ON D1801.WL_ID = D1801DW.WL_ID "
           "LEFT JOIN D1003 ON D1801DW.DW_ID = D1003.DW_ID ORDER BY D1801.WL_ID, D1801DW.ADW";
}

std::string select_order_lines() {
    return "SELECT ID, NOID FROM D8101A WHERE ID NOT IN (SELECT D8101AID FROM D8102A WHERE "
           "D8101AID IS NOT NULL) ORDER BY NOID, ID";
}

// ---- writing ----

std::string insert_invoice(const InvoiceHead& head, const std::string& approved) {
    return "INSERT INTO D8102(C,T,NOID,KH_GYS_ID,CK_ID, BDATE, SEND_ID,YW_ID, USER_ID, "
           "NOTE,TOLMONEY,YSMONEY,BQMONEY,YHMONEY) VALUES (0," +
           quoted(approved) + "," + quoted(head.number) + "," + quoted(head.customer) + "," +
           quoted(head.warehouse) + "," + quoted(head.date) + "," + quoted(head.route) + "," +
           quoted(head.salesman) + "," + quoted(head.user) + "," + quoted(head.note) + "," +
           quoted(head.total) + "," + quoted(head.total) + "," + quoted(head.received) + "," +
           quoted(head.discount) + ");";
}

std::string update_invoice(const InvoiceHead& head) {
    return "UPDATE D8102 SET EDATE=GETDATE(), KH_GYS_ID=" + quoted(head.customer) +
           ",CK_ID=" + quoted(head.warehouse) + ",BDATE=" + quoted(head.date) +
           ",SEND_ID=" + quoted(head.route) + ",YW_ID=" + quoted(head.salesman) +
           ",USER_ID=" + quoted(head.user) + ",NOTE=" + quoted(head.note) +
           ",YSMONEY=" + head.total + "-summoney-remoney,TOLMONEY=" + quoted(head.total) +
           ",BQMONEY=" + quoted(head.received) + ",YHMONEY=" + quoted(head.discount) +
           " WHERE noid=" + quoted(head.number) + ";delete from d631 WHERE NOID=" +
           quoted(head.number + "SYS") + ";delete from  d8102A WHERE NOID=" + quoted(head.number) +
           ";";
}

std::string insert_invoice_lines(const InvoiceHead& head, const std::vector<InvoiceLine>& lines) {
    std::string batch;
    int key = first_line_key;
    for (const InvoiceLine& line : lines) batch += insert_line(head, line, key++);
    return batch;
}

std::string insert_counter_receipt(const InvoiceHead& head) {
    const std::string receipt = quoted(head.number + "SYS");
    const std::string settled = "(" + head.received + "+" + head.discount + ")";
    return "INSERT INTO D631 (T, NOID,KH_GYS_ID, JY_KM, KM_ID, JY_ID, MONEY_SS,MONEY_YH,MONEY,"
           "BDATE, EDATE, PH, USER_ID) values (1," +
           receipt + "," + quoted(head.customer) + ",'0','1001','1'," + quoted(head.received) +
           "," + quoted(head.discount) + "," + settled + "," + quoted(head.date) + ",NULL,''," +
           quoted(head.user) +
           ");INSERT INTO D631A (NOID,C,D8102NOID,KH_GYS_ID, MONEY) VALUES (" + receipt +
           ",'0'," + quoted(head.number) + "," + quoted(head.customer) + "," + settled + ");";
}

std::string recompute_settlement(const std::string& number) {
    const std::string document = "(D8102NOID = " + quoted(number) + ")";
    return "IF NOT EXISTS (SELECT * FROM D631A where " + document +
           ") UPDATE d8102 set sumMONEY =0 WHERE (d8102.NOID= " + quoted(number) +
           ")ELSE update d8102 set sumMONEY = t.money FROM (SELECT D8102NOID, ISNULL(SUM(MONEY),0) "
           "AS MONEY FROM D631A where" +
           document +
           " GROUP BY D8102NOID   )  t where d8102.NOID= t.D8102NOID; update D8102 set "
           "ysmoney=tolmoney-remoney-summoney  WHERE (d8102.NOID= " +
           quoted(number) + ")";
}

std::string mark_printed(const std::string& number) {
    return "UPDATE D8102 SET T_PRINT='*' WHERE NOID=" + quoted(number) + ";";
}

} // namespace module
