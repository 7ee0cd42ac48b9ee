// Receipts for the sales documents that one dispatch note carried.
#include "module/invoicing/import_statements.h"

#include "host/contract/U_function.h"
#include "host/values/sql_text.h"

namespace module {

std::string select_dispatched(const std::string& note) {
    const std::string of_note = quoted(note);
    return "SELECT *,' ' AS B FROM ( SELECT 1 AS INX, NULL AS NOID, D8102.KH_GYS_ID, "
           "D1102.KG_NAME, SUM(D8102.TOLMONEY) AS TOLMONEY, SUM(D8102.TOLMONEY) AS SMONEY, "
           "GETDATE() AS BDATE, (SELECT JY_ID FROM D1010 WHERE JY_ID='1') AS "
           "JY_ID,CONVERT(VARCHAR(50),NULL) AS JY_NAME, CONVERT(VARCHAR(20),NULL) AS PH FROM "
           "D8500A INNER JOIN D8102 ON D8500A.D8102NOID = D8102.NOID INNER JOIN D1102 ON "
           "D8102.KH_GYS_ID = D1102.KH_GYS_ID WHERE (D8500A.NOID =" +
           of_note +
           ") GROUP BY D8102.KH_GYS_ID, D1102.KG_NAME UNION ALL SELECT 0 AS INX,D8102.NOID, "
           "D1102.KH_GYS_ID, D1102.KG_NAME, D8102.TOLMONEY, 0.00 AS SMONEY, "
           "D8102.BDATE,NULL,NULL,NULL FROM D8500A INNER JOIN D8102 ON D8500A.D8102NOID = "
           "D8102.NOID INNER JOIN D1102 ON D8102.KH_GYS_ID = D1102.KH_GYS_ID WHERE (D8500A.NOID "
           "= " +
           of_note + ") ) A ORDER BY KH_GYS_ID,INX,NOID ";
}

std::string insert_imported_head(const ImportedReceipt& receipt) {
    const std::string total = quoted(receipt.total.to_text());
    return "INSERT INTO D631 (T, NOID,KH_GYS_ID, JY_KM, KM_ID, JY_ID, MONEY_SS,MONEY_YH,MONEY,"
           "BDATE, EDATE, PH, USER_ID) values (0," +
           quoted(receipt.number) + "," + quoted(receipt.customer) + ",'0','1001'," +
           quoted(receipt.account) + "," + total + ",'0'," + total + "," + quoted(receipt.date) +
           ",NULL," + quoted(receipt.slip) + "," + quoted(receipt.user) + ");";
}

std::string insert_imported_line(const std::string& number, const std::string& document,
                                 const std::string& customer, Amount total) {
    return "INSERT INTO D631A (NOID,C,T,D8102NOID,KH_GYS_ID, MONEY) VALUES (" + quoted(number) +
           ",0,1," + quoted(document) + "," + quoted(customer) + "," +
           quoted(FormatAmount(total)) + ");";
}

} // namespace module
