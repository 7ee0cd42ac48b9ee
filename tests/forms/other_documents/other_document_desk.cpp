// A person on books with parties, staff, accounts and categories, for other receipts and payments.
#include "tests/forms/other_documents/other_document_desk.h"

namespace tests {

OtherDocumentDesk::OtherDocumentDesk() {
    books.execute("INSERT INTO D1102 (KH_GYS_ID,KG_NAME) VALUES ('K1','常熟建材'),('K2','园区商贸');"
                  "INSERT INTO D1103 (KH_GYS_ID,KG_NAME) VALUES ('G1','城东物业');"
                  "INSERT INTO D1101 (YW_ID,YW_NAME) VALUES ('Y1','李敏');"
                  "INSERT INTO D1008 (BM_ID,BM_NAME) VALUES ('B1','行政部');"
                  "INSERT INTO D1010 (JY_ID,JY_NAME) VALUES ('2','工行园区支行');"
                  "INSERT INTO D6804 (SZLB_CLASS,SZLB,SZLB_NAME,PYM,KM_ID,T) VALUES "
                  "(0,'01','存款利息','CKLX','550302',1),(0,'02','罚款收入','FKSR','5301',1),"
                  "(0,'03','租金收入','ZJSR','5102',1),(1,'21','房租','FZ','550201',1),"
                  "(1,'22','水电费','SDF','550201',1)");
}

void OtherDocumentDesk::new_document(int code) {
    anna.open(code);
    anna.click("Act_Add");
    anna.expect_active("TF6" + std::to_string(code) + "_1");
    anna.mark();
}

std::string OtherDocumentDesk::batch_sent() {
    std::string batch;
    for (const host::SentStatement& statement : anna.sent())
        if (statement.call == "ExecSql") batch += statement.text;
    anna.mark();
    return batch;
}

std::string OtherDocumentDesk::documents(const std::string& table) {
    std::string text;
    for (const Row& row : books.table("SELECT * FROM " + table + " ORDER BY NOID")) {
        if (!text.empty()) text += '\n';
        for (const char* field : {"NOID", "C", "TOLMONEY", "SUMMONEY", "YSMONEY", "JY_ID"})
            text += (std::string(field) == "NOID" ? "" : " ") + row.at(field);
    }
    return text;
}

} // namespace tests
