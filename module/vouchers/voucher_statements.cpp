// The statements of one voucher: how it is read, written and copied to a template.
#include "module/vouchers/voucher_statements.h"

#include "host/contract/U_function.h"
#include "host/values/sql_text.h"

namespace module {

const char* const voucher_heads =
    " SELECT D6601.*, SYS_USER.USER_NAME FROM D6601 INNER JOIN   SYS_USER "
    "ON D6601.USER_ID = SYS_USER.USER_ID ";

const char* const voucher_lines =
    "SELECT D6601A.*, V6801.KM_NAME_NEW, V6801.KM_K FROM D6601A INNER JOIN V6801 "
    "ON D6601A.KM_ID = V6801.KM_ID  WHERE (NOID =%s) ORDER BY INX";

std::string select_voucher_head(const std::string& key) {
    return voucher_heads + std::string(" where d6601.noid=") + quoted(key);
}

std::string select_voucher_lines(const std::string& key) {
    std::string query = voucher_lines;
    return query.replace(query.find("%s"), 2, quoted(key));
}

std::string delete_voucher(const std::string& key) {
    return "delete from D6601 WHERE NOID=" + quoted(key) + ";";
}

std::string insert_voucher_head(const VoucherHead& head) {
    return "INSERT INTO D6601 (NOID, PZQJ, PZZ, PZZ_H, PZZ_Z, BDATE, USER_ID) VALUES (" +
           quoted(head.key) + "," + quoted(head.period) + "," + quoted(head.word) + "," +
           quoted(head.number) + "," + quoted(head.attachments) + "," + quoted(head.date) + "," +
           quoted(head.maker) + ");";
}

std::string insert_voucher_lines(const std::string& key, const std::vector<VoucherLine>& lines) {
    std::string batch;
    int order = 0;
    for (const VoucherLine& line : lines_to_save(lines)) {
        batch += "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX)  VALUES (" + quoted(key) + "," +
                 quoted(line.summary) + "," + quoted(line.account) + "," +
                 quoted(FormatAmount(line.debit)) + "," + quoted(FormatAmount(line.credit)) + "," +
                 std::to_string(order++) + ");";
    }
    return batch;
}

} // namespace module
