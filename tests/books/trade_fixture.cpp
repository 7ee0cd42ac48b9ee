// The documents of March 2024.
#include "tests/books/trade_fixture.h"

#include "automation/sql/collected_result.h"

namespace tests {

namespace {

const std::string parties = "INSERT INTO D1102 (KH_GYS_ID,KG_NAME) VALUES ('K1','甲'),('K2','乙');"
                            "INSERT INTO D1103 (KH_GYS_ID,KG_NAME) VALUES ('G1','丙');"
                            "INSERT INTO D1010 (JY_ID,JY_NAME) VALUES ('2','工行');";

// K1 owes: 200 from before, 1000 less 50 credited, 300, and 120 of another kind; 40 came back, and
// 80 were paid in advance before the books began.
const std::string documents =
    "INSERT INTO D8102 (NOID,C,KH_GYS_ID,BDATE,USER_ID,TOLMONEY,REMONEY,YSMONEY) VALUES "
    "('初K1',2,'K1','2024-03-01','admin',200,0,200),('预K1',3,'K1','2024-03-01','admin',80,0,80),"
    "('S1',0,'K1','2024-03-05','admin',1000,50,950),"
    "('S2',0,'K1','2024-03-20','admin',300,0,300);"
    "INSERT INTO D8103 (NOID,KH_GYS_ID,JY_ID,BDATE,TOLMONEY,YSMONEY) VALUES "
    "('T1','K1','0','2024-03-10',40,40);"
    "INSERT INTO D651 (NOID,C,KH_GYS_ID,JY_ID,BDATE,USER_ID,TOLMONEY,YSMONEY) VALUES "
    "('Q1',1,'K1','0','2024-03-12','admin',120,120);";

// R1 brings 500 with 10 of discount and settles 430 + 100 - 20; R2 is an advance, R3 pays some of
// it back, R4 sets 100 of it against S2.
const std::string receipts =
    "INSERT INTO D631 (T,NOID,KH_GYS_ID,JY_KM,KM_ID,JY_ID,MONEY,MONEY_SS,MONEY_YH,BDATE,USER_ID) "
    "VALUES (1,'R1','K1',0,'1001','1',510,500,10,'2024-03-15','admin'),"
    "(1,'R2','K1',1,'1001','1',150,150,0,'2024-03-18','admin'),"
    "(1,'R3','K1',2,'1001','1',30,30,0,'2024-03-25','admin'),"
    "(1,'R4','K1',3,'1001','1',100,100,0,'2024-03-28','admin');"
    "INSERT INTO D631A (NOID,C,D8102NOID,KH_GYS_ID,MONEY) VALUES ('R1',0,'S1','K1',430),"
    "('R1',2,'初K1','K1',100),('R4',0,'S2','K1',100);"
    "INSERT INTO D631A (NOID,C,D8103NOID,KH_GYS_ID,MONEY) VALUES ('R1',6,'T1','K1',-20);"
    "INSERT INTO D631B (INX,NOID,JY_ID,MONEY) VALUES (0,'R1','1',200),(0,'R1','2',300);";

// Money besides: 100 moved from account 1 to 2, 70 taken and 25 spent at once, 15 paid back to a
// customer, 9 got back from and 60 paid to a supplier.
const std::string money =
    "INSERT INTO D653 (NOID,BDATE,JY_ID_FK,JY_ID_SK,MONEY,ZY,USER_ID) VALUES "
    "('B1','2024-03-06','1','2',100,'存现','admin');"
    "INSERT INTO D651 (NOID,C,KH_GYS_ID,JY_ID,BDATE,USER_ID,TOLMONEY,SUMMONEY) VALUES "
    "('Q2',0,'K1','1','2024-03-07','admin',70,70);"
    "INSERT INTO D652 (NOID,C,KH_GYS_ID,JY_ID,BDATE,USER_ID,TOLMONEY,SUMMONEY) VALUES "
    "('E1',0,'G1','2','2024-03-08','admin',25,25);"
    "INSERT INTO D8103 (NOID,KH_GYS_ID,JY_ID,BDATE,TOLMONEY) VALUES "
    "('T2','K1','1','2024-03-09',15);"
    "INSERT INTO D8203 (NOID,KH_GYS_ID,JY_ID,BDATE,TOLMONEY) VALUES "
    "('X1','G1','2','2024-03-09',9);"
    "INSERT INTO D641 (T,NOID,KH_GYS_ID,JY_KM,KM_ID,JY_ID,MONEY,MONEY_SS,BDATE,USER_ID) VALUES "
    "(1,'P1','G1',0,'1001','1',60,60,'2024-03-16','admin');";

} // namespace

Trade::Trade() {
    run(parties + documents + receipts + money);
}

std::string Trade::rows(const std::string& statement) {
    std::string text;
    for (const automation::TextRow& row : automation::rows_of(*session_, statement)) {
        if (!text.empty()) text += '\n';
        for (std::size_t i = 0; i < row.size(); ++i)
            text += (i > 0 ? " " : "") + row[i].value_or("-");
    }
    return text;
}

std::string Trade::settled(const std::string& table, const std::string& document) {
    return rows("SELECT SUMMONEY, YSMONEY FROM " + table + " WHERE NOID='" + document + "'");
}

} // namespace tests
