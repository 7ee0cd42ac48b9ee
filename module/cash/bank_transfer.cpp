// One movement of money between two of the company's own accounts, and its statements.
#include "module/cash/bank_transfer.h"

#include "host/values/sql_text.h"

namespace module {

std::string select_transfers() {
    return "SELECT D653.NOID, D653.BDATE, D653.EDATE, D653.JY_ID_FK, FK.JY_NAME AS JY_NAME_FK, "
           "D653.JY_ID_SK, SK.JY_NAME AS JY_NAME_SK, D653.MONEY, D653.ZY, D653.YW_ID, "
           "D1101.YW_NAME, D653.BM_ID, D1008.BM_NAME, D653.USER_ID, SYS_USER.USER_NAME FROM D653 "
           "INNER JOIN D1010 FK ON D653.JY_ID_FK = FK.JY_ID INNER JOIN D1010 SK ON D653.JY_ID_SK "
           "= SK.JY_ID INNER JOIN SYS_USER ON D653.USER_ID = SYS_USER.USER_ID left JOIN D1008 ON "
           "D653.BM_ID = D1008.BM_ID LEFT JOIN D1101 ON D653.YW_ID = D1101.YW_ID ";
}

std::string select_transfer(const std::string& number) {
    return select_transfers() + "where D653.NOID=" + quoted(number);
}

std::string insert_transfer(const BankTransfer& transfer) {
    return "insert into D653 (NOID, BDATE, JY_ID_FK, JY_ID_SK, MONEY, ZY, YW_ID, BM_ID, USER_ID)"
           "ValueS(" +
           quoted(transfer.number) + "," + quoted(transfer.date) + "," + quoted(transfer.paying) +
           "," + quoted(transfer.receiving) + "," + quoted(transfer.amount) + "," +
           quoted(transfer.summary) + "," + quoted(transfer.staff) + "," +
           quoted(transfer.department) + "," + quoted(transfer.operator_id) + ")";
}

std::string update_transfer(const BankTransfer& transfer, const std::string& number) {
    return "update D653 set BDATE=" + quoted(transfer.date) +
           ",JY_ID_FK=" + quoted(transfer.paying) + ",JY_ID_SK=" + quoted(transfer.receiving) +
           ",MONEY=" + quoted(transfer.amount) + ",ZY=" + quoted(transfer.summary) +
           ",YW_ID=" + quoted(transfer.staff) + ",BM_ID=" + quoted(transfer.department) +
           ",USER_ID=" + quoted(transfer.operator_id) + " where NOID=" + quoted(number);
}

} // namespace module
