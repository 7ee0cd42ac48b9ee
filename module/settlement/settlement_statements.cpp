// The statements of a receipt or payment on one account: how it is read and written.
#include "module/settlement/settlement_statements.h"

#include "host/contract/U_function.h"
#include "host/values/sql_text.h"

namespace module {

namespace {

constexpr const char* ledger_account = "1001";

std::string number_of(const char* table) {
    return std::string(table) + "NOID";
}

// A column of the line's document, whichever kind it is: "CASE … END AS TOLMONEY".
std::string of_document(const SettlementKind& kind, const std::string& document,
                        const std::string& other, const std::string& returned,
                        const std::string& name) {
    return "CASE " + std::string(kind.lines) + ".C WHEN 5 THEN " + other + " WHEN 6 THEN " +
           returned + " ELSE " + document + " END AS " + name;
}

} // namespace

// ---- reading ----

std::string select_party(const SettlementKind& kind, const std::string& party) {
    return "SELECT B.KH_GYS_ID, B.KG_NAME, A.YM, A.YSM, A.XJYS FROM " +
           std::string(kind.balances) + " A RIGHT OUTER JOIN " + kind.party.table +
           " B ON A.KH_GYS_ID = B.KH_GYS_ID WHERE B.KH_GYS_ID=" + quoted(party) + ";";
}

std::string select_open_items(const SettlementKind& kind, const std::string& party) {
    const std::string documents = kind.documents;
    const std::string of_party = "KH_GYS_ID=" + quoted(party) + ")";
    const std::string opening = "CASE C WHEN 2 THEN " + quoted(kind.opening_name) + " ELSE ";
    return "SELECT NOID,C," + opening + "NOID END AS " + number_of(kind.documents) + ", " +
           opening + quoted(kind.document_name) +
           " END AS C_NAME, BDATE,TOLMONEY,SUMMONEY,REMONEY,YSMONEY AS MONEY FROM " + documents +
           " WHERE (C < 3) AND (" + documents + "." + of_party + " AND (YSMONEY>0) " +
           "UNION ALL SELECT NOID,5,NOID," + quoted(kind.other_name) +
           ", BDATE,TOLMONEY,SUMMONEY,0.00,YSMONEY AS MONEY FROM " + kind.others + " WHERE (" +
           of_party + " AND (YSMONEY<>0)  UNION ALL SELECT NOID, 6, NOID, " +
           quoted(kind.return_name) +
           " AS C_NAME, BDATE, 0-TOLMONEY, 0-SUMMONEY, 0, 0-YSMONEY AS MONEY FROM " +
           kind.returns + " WHERE (JY_ID = '0') AND (YSMONEY>0) AND  (" + of_party +
           kind.before_order + "ORDER BY BDATE,C," + documents + ".NOID ";
}

std::string select_head(const SettlementKind& kind, const std::string& number) {
    return std::string(kind.select_heads) + " where " + kind.numbers.table +
           ".noid=" + quoted(number);
}

std::string lines_query(const SettlementKind& kind) {
    const std::string lines = kind.lines, document = kind.documents, other = kind.others,
                      returned = kind.returns;
    const std::string numbers[] = {lines + "." + number_of(kind.documents),
                                   lines + "." + number_of(kind.others),
                                   lines + "." + number_of(kind.returns)};
    const auto joined = [&lines](const std::string& table, const std::string& number) {
        return " LEFT OUTER JOIN " + table + " ON " + number + " = " + table + ".NOID";
    };
    const std::string own = "-" + lines + ".MONEY";
    return "SELECT " + of_document(kind, numbers[0], numbers[1], numbers[2], "NOID") + "," +
           lines + ".C,CASE " + lines + ".C WHEN 2 THEN " + quoted(kind.opening_name) +
           " WHEN 5 THEN " + numbers[1] + " WHEN 6 THEN " + numbers[2] + " ELSE " + numbers[0] +
           " END AS " + number_of(kind.documents) + ",CASE " + lines + ".C WHEN 2 THEN " +
           quoted(kind.opening_name) + " WHEN 5 THEN " + quoted(kind.other_name) +
           " WHEN 6 THEN " + quoted(kind.return_name) + " ELSE " + quoted(kind.document_name) +
           " END AS C_NAME," +
           of_document(kind, document + ".BDATE", other + ".BDATE", returned + ".BDATE", "BDATE") +
           "," +
           of_document(kind, document + ".TOLMONEY", other + ".TOLMONEY",
                       "0-" + returned + ".tolmoney", "TOLMONEY") +
           "," +
           of_document(kind, document + ".SUMMONEY" + own, other + ".SUMMONEY" + own,
                       "0-" + returned + ".SUMMONEY" + own, "SUMMONEY") +
           "," + of_document(kind, document + ".REMONEY", "0.00", "0.00", "REMONEY") + "," +
           lines + ".MONEY FROM " + lines + joined(document, numbers[0]) +
           joined(returned, numbers[2]) + joined(other, numbers[1]) + " where " + lines +
           ".noid=%s " + kind.line_order;
}

// ---- writing ----

std::string insert_head(const SettlementKind& kind, const SettlementHead& head) {
    return kind.insert_head + quoted(head.number) + "," + quoted(head.party) + "," +
           quoted(head.purpose) + "," + quoted(ledger_account) + "," + quoted(head.account) + "," +
           quoted(head.paid) + "," + quoted(head.discount) + ",(" + head.paid + "+" +
           head.discount + ")," + quoted(head.date) + ",NULL," + quoted(head.slip) + "," +
           quoted(head.user) + ");";
}

std::string update_head(const SettlementKind& kind, const SettlementHead& head) {
    return "UPDATE " + std::string(kind.heads) + " SET edate=getdate(), KH_GYS_ID=" +
           quoted(head.party) + ",JY_KM=" + quoted(head.purpose) + ",BDATE=" + quoted(head.date) +
           ",JY_ID=" + quoted(head.account) + ",KM_ID=" + quoted(ledger_account) +
           ",PH=" + quoted(head.slip) + ",MONEY_SS=" + quoted(head.paid) +
           ",MONEY_YH=" + quoted(head.discount) + ",MONEY=(" + head.paid + "+" + head.discount +
           "),USER_ID=" + quoted(head.user) + " WHERE noid=" + quoted(head.number) + ";";
}

std::string delete_lines(const SettlementKind& kind, const std::string& number) {
    return "delete from  " + std::string(kind.lines) + " WHERE NOID=" + quoted(number) + ";";
}

std::string insert_write_offs(const SettlementKind& kind, const SettlementHead& head,
                              const std::vector<WriteOff>& lines) {
    std::string batch;
    for (const WriteOff& line : lines) {
        if (line.share.is_zero()) continue;
        const char* document = line.kind == other_item    ? kind.others
                               : line.kind == return_item ? kind.returns
                                                          : kind.documents;
        batch += "INSERT INTO " + std::string(kind.lines) + " (NOID,C," + number_of(document) +
                 ",KH_GYS_ID, MONEY) VALUES (" + quoted(head.number) + "," +
                 quoted(std::to_string(line.kind)) + "," + quoted(line.number) + "," +
                 quoted(head.party) + "," + quoted(FormatAmount(line.share)) + ");";
    }
    return batch;
}

} // namespace module
