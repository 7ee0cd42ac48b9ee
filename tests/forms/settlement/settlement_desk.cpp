// A person with receipts and payments on real books of March 2024; every figure derived by hand.
#include "tests/forms/settlement/settlement_desk.h"

#include "host/values/text.h"

namespace tests {

const Side receipts{"Receipts", 631,     "TF6631_1", "D631",         "D631A",
                    "D8102",    "D651",  "D8103",    "631240315001", "收"};
const Side payments{"Payments", 641,     "TF6641_1", "D641",         "D641A",
                    "D8202",    "D652",  "D8203",    "641240315001", "付"};

const Side currency_receipts{"CurrencyReceipts", 630,    "TF6630_1", "D631",         "D631A",
                             "D8102",            "D651", "D8103",    "630240315001", "收"};

std::string name_of_side(const testing::TestParamInfo<const Side*>& side) {
    return side.param->name;
}

std::string open_documents(const Side& side) {
    const std::string party = side.code == 641 ? "D1103" : "D1102";
    std::string batch =
        "INSERT INTO PARTY (KH_GYS_ID,KG_NAME) VALUES ('K1','甲'),('K2','乙');"
        "INSERT INTO DOC (NOID,C,KH_GYS_ID,BDATE,USER_ID,TOLMONEY,REMONEY,YSMONEY) VALUES "
        "('初K1',2,'K1','2024-03-01','admin',3600,0,3600),"
        "('预K1',3,'K1','2024-03-01','admin',500,0,500),"
        "('S1',0,'K1','2024-03-04','admin',46800,0,46800),"
        "('S3',0,'K1','2024-03-12','admin',52650,0,52650),"
        "('S2',0,'K1','2024-03-05','admin',28431,1170,27261),"
        "('S4',0,'K1','2024-03-02','admin',70,70,0),"
        "('U1',0,'K2','2024-03-02','admin',1000,0,1000),"
        "('U2',0,'K2','2024-03-03','admin',2000,0,2000);"
        "INSERT INTO RET (NOID,KH_GYS_ID,JY_ID,BDATE,TOLMONEY,YSMONEY) VALUES "
        "('T1','K1','0','2024-03-10',3510,3510),('T2','K1','1','2024-03-09',15,0);"
        "INSERT INTO OTHER (NOID,C,KH_GYS_ID,JY_ID,BDATE,USER_ID,TOLMONEY,YSMONEY) VALUES "
        "('Q1',1,'K1','0','2024-03-12','admin',1280,1280);"
        "INSERT INTO D1010 (JY_ID,JY_NAME) VALUES ('2','工行');";
    for (const auto& [word, table] : {std::pair<std::string, std::string>{"PARTY", party},
                                      {"DOC", side.documents},
                                      {"RET", side.returns},
                                      {"OTHER", side.others}})
        batch = host::replaced(batch, "INTO " + word, "INTO " + table);
    return batch;
}

namespace {

BooksOptions with_open_documents(const Side& side) {
    BooksOptions options;
    options.start = "2024-03";
    options.prepare = open_documents(side);
    return options;
}

} // namespace

SettlementDesk::SettlementDesk(const Side& side)
    : side(side), books(with_open_documents(side)), anna(books.data(), books.person()) {}

void SettlementDesk::TearDown() {
    EXPECT_EQ(books.findings(), "");
}

void SettlementDesk::new_document(const std::string& party) {
    anna.open(side.code);
    anna.click("Act_Add");
    anna.expect_active(side.entry);
    if (!party.empty()) anna.set("KH_GYS_ID", party);
    anna.focus("CB1"); // the party is left
    anna.mark();
}

void SettlementDesk::pay(const std::string& money, const std::string& discount) {
    anna.set("MONEY", money);
    if (!discount.empty()) anna.set("YH", discount);
}

void SettlementDesk::save() {
    anna.click("Act_Save");
    if (anna.active() == side.entry) anna.close();
}

std::string SettlementDesk::shares() {
    std::string text;
    for (const Row& row : anna.rows()) text += (text.empty() ? "" : " ") + row.at("MONEY");
    return text;
}

std::string SettlementDesk::columns(bool visible) {
    std::string text;
    const nlohmann::json grid = anna.control("DBGridEh");
    for (const auto& column : grid["columns"])
        if (column["visible"].get<bool>() == visible)
            text += column["field"].get<std::string>() + " " +
                    column["title"].get<std::string>() + ",";
    return text;
}

std::string SettlementDesk::last_batch() {
    std::string batch;
    for (const host::SentStatement& sent : anna.sent())
        if (sent.call == "ExecSql") batch = sent.text;
    return batch;
}

std::string SettlementDesk::settled(const std::string& table, const std::string& document) {
    const Rows rows = books.table("SELECT SUMMONEY,YSMONEY FROM " + table + " WHERE NOID='" +
                                  document + "'");
    return rows.empty() ? "" : rows.front().at("SUMMONEY") + " " + rows.front().at("YSMONEY");
}

void SettlementDesk::expect_not_saved(const std::string& message) {
    const std::string before = books.value("SELECT COUNT(*) FROM " + side.heads);
    anna.mark();
    anna.click("Act_Save");
    anna.expect_message(message);
    anna.expect_active(side.entry);
    EXPECT_EQ(last_batch(), "");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM " + side.heads), before);
}

} // namespace tests
