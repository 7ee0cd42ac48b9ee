// What other receipts and payments ask of the books, and what they write into them.
#include "module/other_documents/other_document_statements.h"

#include "host/forms/parts/delete_guard.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"

namespace module {

namespace {

// The statement with the kind's own tables, party and names in the places of the other receipt's.
std::string of_kind(const OtherDocumentKind& kind, std::string statement) {
    const std::pair<const char*, const char*> names[] = {{"[heads]", kind.heads},
                                                         {"[lines]", kind.lines},
                                                         {"[party]", kind.party.table},
                                                         {"[settled]", kind.settled},
                                                         {"[open]", kind.open},
                                                         {"[account 0]", kind.party_account}};
    for (const auto& [place, name] : names) statement = replaced(statement, place, name);
    return statement;
}

} // namespace

// ---- reading ----

std::string select_heads(const OtherDocumentKind& kind) {
    return of_kind(
        kind,
        "SELECT [heads].*, SYS_USER.USER_NAME, [party].KG_NAME, D1101.YW_NAME, D1008.BM_NAME,CASE "
        "[heads].C WHEN 0 THEN '[settled]' else '[open]' END AS C_NAME, CASE D1010.JY_ID WHEN '0' "
        "THEN '[account 0]' ELSE D1010.JY_NAME END AS JY_NAME FROM [heads] INNER JOIN SYS_USER ON "
        "[heads].USER_ID = SYS_USER.USER_ID INNER JOIN D1010 ON [heads].JY_ID = D1010.JY_ID LEFT "
        "JOIN [party] ON [heads].KH_GYS_ID = [party].KH_GYS_ID LEFT JOIN D1101 ON [heads].YW_ID = "
        "D1101.YW_ID LEFT JOIN D1008 ON [heads].BM_ID = D1008.BM_ID ");
}

std::string select_head(const OtherDocumentKind& kind, const std::string& number) {
    return select_heads(kind) + " where " + kind.numbers.table + ".noid=" + quoted(number);
}

std::string select_lines(const OtherDocumentKind& kind) {
    return of_kind(kind, "SELECT [lines].*, D6804.SZLB_NAME FROM [lines] INNER JOIN D6804 ON "
                         "[lines].SZLB = D6804.SZLB  WHERE ([lines].NOID =%s) order by "
                         "[lines].id ");
}

std::string select_lines(const OtherDocumentKind& kind, const std::string& number) {
    return with_key(select_lines(kind), number);
}

std::string select_blank_lines(const OtherDocumentKind& kind) {
    return of_kind(kind,
                   "SELECT D6804.SZLB,D6804.SZLB_NAME,a.ID, a.NOID, a.NOTE,a.SZLB_CLASS, 0.00 as "
                   "MONEY FROM D6804 LEFT OUTER JOIN (SELECT TOP 0 ID, NOID, SZLB, NOTE, "
                   "SZLB_CLASS FROM [lines])a on D6804.SZLB = a.SZLB  where D6804.SZLB_CLASS=") +
           std::to_string(kind.category_class);
}

std::string select_categories(const OtherDocumentKind& kind) {
    return "SELECT SZLB, SZLB_NAME,PYM,0 AS I FROM D6804 WHERE SZLB_CLASS=" +
           std::to_string(kind.category_class);
}

// ---- writing ----

std::string insert_head(const OtherDocumentKind& kind, const OtherDocumentHead& head) {
    std::string statement = of_kind(kind, "INSERT INTO [heads] (C, NOID, KH_GYS_ID, YW_ID, BM_ID, "
                                          "JY_ID, BDATE, ZY, USER_ID, TOLMONEY,SUMMONEY) VALUES (");
    const std::string account = head.open ? "0" : head.account;
    const std::string values[] = {head.open ? "1" : "0", head.number, head.party,   head.staff,
                                  head.department,       account,     head.date,    head.summary,
                                  head.user,             head.total};
    for (const std::string& value : values) statement += quoted(value) + ",";
    return statement + quoted(head.open ? "0" : head.total) + ");";
}

std::string update_head(const OtherDocumentKind& kind, const OtherDocumentHead& head) {
    const std::string settled = head.open ? "" : ",sumMONEY=" + quoted(head.total);
    return "UPDATE " + std::string(kind.numbers.table) + " SET KH_GYS_ID=" + quoted(head.party) +
           ",BDATE=" + quoted(head.date) + ",JY_ID=" + quoted(head.account) +
           ",bm_ID=" + quoted(head.department) + ",YW_ID=" + quoted(head.staff) +
           ",ZY=" + quoted(head.summary) + ",TOLMONEY=" + quoted(head.total) + settled +
           ",USER_ID=" + quoted(head.user) + ",C=" + quoted(head.open ? "1" : "0") +
           " WHERE noid=" + quoted(head.number) + ";";
}

std::string recompute_open_amount(const OtherDocumentKind& kind, const std::string& number) {
    return of_kind(kind, "UPDATE [heads] SET YSMONEY=TOLMONEY-SUMMONEY WHERE NOID=") +
           quoted(number) + ";";
}

std::string delete_lines(const OtherDocumentKind& kind, const std::string& number) {
    return "delete from  " + std::string(kind.numbers.table) + "A WHERE NOID=" + quoted(number) +
           ";";
}

// The class of a line is written as 0 for payments too; the category knows its own.
std::string insert_line(const OtherDocumentKind& kind, const std::string& number,
                        const OtherDocumentLine& line) {
    return of_kind(kind, "INSERT INTO [lines] (NOID, SZLB, MONEY, NOTE, SZLB_CLASS)  VALUES (") +
           quoted(number) + "," + quoted(line.category) + "," +
           quoted(line.amount.to_text()) + "," + quoted(line.note) + ",0);";
}

} // namespace module
