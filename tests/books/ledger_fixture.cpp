// Vouchers and posting, in statements.
#include "tests/books/ledger_fixture.h"

#include "app/books/open.h"
#include "automation/sql/collected_result.h"
#include "tests/support/fresh_books.h"

namespace tests {

namespace {

const std::string movements =
    "FROM (SELECT D6601A.KM_ID, SUM(D6601A.J) AS J, SUM(D6601A.D) AS D FROM D6601A "
    "INNER JOIN D6601 ON D6601A.NOID = D6601.NOID WHERE D6601.T=1 AND (D6601.PZQJ = '2024-03') "
    "GROUP BY D6601A.KM_ID, D6601.PZQJ) T "
    "WHERE D6602.INX=0 AND D6602.QJ='2024-03' AND D6602.KM_ID=T.KM_ID;";

std::string empty_rows(const std::string& kind) {
    return "INSERT INTO D6602 (INX,QJ,KM_ID) SELECT " + kind +
           ",'2024-03',D6801.KM_ID FROM D6801 left OUTER JOIN D6602 ON D6602.KM_ID = D6801.KM_ID "
           "and (D6602.INX = " + kind + ") AND (D6602.QJ = '2024-03') where d6602.km_id is null;";
}

std::string roll_up() {
    std::string batch;
    for (int pass = 0; pass < 6; ++pass)
        batch += "UPDATE D6602 SET J=T.J,D=T.D FROM (SELECT OID,SUM(J) AS J,SUM(D) AS D FROM D6602 "
                 "INNER JOIN D6801 ON D6602.KM_ID=D6801.KM_ID WHERE QJ ='2024-03' AND INX = 0 "
                 "GROUP BY OID) T WHERE D6602.KM_ID=T.OID AND D6602.QJ ='2024-03';";
    return batch;
}

const std::string closing =
    "UPDATE D6602 SET D6602.J=T.J,D6602.D=T.D FROM ( SELECT D6602.KM_ID, "
    "CASE D6801.FX WHEN '借' then ISNULL(BE.J, 0.00)+D6602.J-D6602.D else 0.00 end AS J, "
    "CASE D6801.FX WHEN '借' then 0.00 else ISNULL(BE.D, 0.00)+D6602.D-D6602.J end AS D "
    "FROM D6602 INNER JOIN D6801 ON D6602.KM_ID = D6801.KM_ID LEFT OUTER JOIN "
    "(SELECT KM_ID, J, D FROM D6602 WHERE QJ = '2024-02' AND INX = 1) BE "
    "ON D6602.KM_ID = BE.KM_ID WHERE (D6602.INX = 0) AND (D6602.QJ = '2024-03')) T "
    "WHERE D6602.INX=1 AND D6602.QJ='2024-03' AND D6602.KM_ID=T.KM_ID;";

// Opened in March 2024.
std::string fresh_books(const std::string& file) {
    make_fresh_books({}, file);
    return file;
}

} // namespace

Ledger::Ledger()
    : books_(fresh_books(folder_.file("a.zf"))), session_(app::open_books(books_)),
      clock_(host::Date::of(2024, 3, 15)),
      data_(std::make_unique<app::EngineData>(*session_, clock_, "admin")) {}

std::string Ledger::voucher(int number, const std::vector<Line>& lines) {
    std::string padded = std::to_string(number);
    padded.insert(0, padded.size() < 3 ? 3 - padded.size() : 0, '0');
    const std::string key = "2024-03记" + padded;
    std::string batch = "INSERT INTO D6601 (NOID, PZQJ, PZZ, PZZ_H, PZZ_Z, BDATE, USER_ID, T) "
                        "VALUES ('" + key + "','2024-03','记','" + std::to_string(number) +
                        "','1','2024-03-15','admin',1);";
    int inx = 0;
    for (const Line& line : lines)
        batch += "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX) VALUES ('" + key + "','摘要','" +
                 line.account + "','" + line.debit + "','" + line.credit + "'," +
                 std::to_string(inx++) + ");";
    data_->execute(batch, {"661", key, "Add"});
    return key;
}

void Ledger::post() {
    data_->execute(empty_rows("0") + empty_rows("1") +
                       "UPDATE D6602 SET D6602.J=T.J,D6602.D=T.D " + movements + roll_up() +
                       closing + "update D6601 set d=1 WHERE (D6601.PZQJ = '2024-03') "
                       "and D6601.D=0 and t=1;",
                   {"663", "2024-03", "Edit"});
}

std::string Ledger::value(const std::string& select) {
    const auto rows = automation::rows_of(*session_, select);
    return rows.empty() ? "" : rows[0][0].value_or("<null>");
}

void Ledger::damage(const std::string& batch) { automation::rows_of(*session_, batch); }

std::string Ledger::findings() {
    std::string all;
    for (const auto& finding : automation::check_books(*session_))
        all += finding.check + ": " + finding.text + "\n";
    return all;
}

bool Ledger::finds(const std::string& check, const std::string& part) {
    for (const auto& finding : automation::check_books(*session_))
        if (finding.check == check && finding.text.find(part) != std::string::npos) return true;
    return false;
}

} // namespace tests
