// A person on books with customers, goods and orders, for sales documents and what they bring in.
#include "tests/forms/invoicing/invoicing_desk.h"

namespace tests {

// K3 has no delivery route. W1 is sold by the bottle and by the box, W3 has no unit at all.
InvoicingDesk::InvoicingDesk() {
    books.execute(
        "INSERT INTO D1011 (SEND_ID,SEND_NAME) VALUES ('S1','城区专线'),('S2','自提');"
        "INSERT INTO D1007 (CK_ID,CK_NAME) VALUES ('C1','总仓');"
        "INSERT INTO D1101 (YW_ID,YW_NAME) VALUES ('Y1','李敏'),('Y2','陈晓雯');"
        "INSERT INTO D1010 (JY_ID,JY_NAME) VALUES ('2','工行');"
        "INSERT INTO D1102 (KH_GYS_ID,KG_NAME,FULL_NAME,TEL,ADDR,SEND_ID,KM_IDA) VALUES "
        "('K1','常熟建材','常熟盛源建材有限公司','0512-1','虞山镇 18 号','S1','Y1'),"
        "('K2','园区商贸','',NULL,NULL,'S2',NULL),('K3','无路线','',NULL,NULL,NULL,NULL);"
        "INSERT INTO D1003 (DW_ID,DW_NAME) VALUES ('1','瓶'),('2','箱');"
        "INSERT INTO D1801 (WL_ID,WL_NAME,WL_GG) VALUES ('W1','矿泉水','500ml'),"
        "('W2','绿茶','1L'),('W3','运费',NULL);"
        "INSERT INTO D1801DW (WL_ID,DW_ID,TM) VALUES ('W1','1','690001'),('W1','2','690002'),"
        "('W2','1','690003');"
        "INSERT INTO D8101A (ID,NOID) VALUES ('O1','D240301'),('O2','D240301')");
    anna.open(631);
}

void InvoicingDesk::new_invoice() {
    anna.click("Act_Invoice");
    anna.expect_active("TF6631_3");
    anna.mark();
}

std::string InvoicingDesk::batch_sent() {
    std::string batch;
    for (const host::SentStatement& statement : anna.sent())
        if (statement.call == "ExecSql") batch += statement.text;
    anna.mark();
    return batch;
}

std::string InvoicingDesk::settled(const std::string& document) {
    const Rows rows = books.table("SELECT TOLMONEY,SUMMONEY,YSMONEY FROM D8102 WHERE NOID='" +
                                  document + "'");
    if (rows.empty()) return "";
    return rows[0].at("TOLMONEY") + " " + rows[0].at("SUMMONEY") + " " + rows[0].at("YSMONEY");
}

std::string InvoicingDesk::shown(const std::string& control) {
    return anna.value(control) + " " + anna.control(control).at("display").get<std::string>();
}

} // namespace tests
