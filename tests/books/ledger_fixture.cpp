// Vouchers and posting, in statements.
#include "tests/books/ledger_fixture.h"

#include "app/books/open.h"
#include "automation/sql/collected_result.h"
#include "module/vouchers/posting_batch.h"
#include "tests/support/fresh_books.h"

namespace tests {

namespace {

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

std::string Ledger::voucher(int number, const std::vector<Line>& lines, const std::string& word) {
    const std::string period = value("SELECT PARAM FROM D6600 WHERE ID = 2");
    std::string padded = std::to_string(number);
    padded.insert(0, padded.size() < 3 ? 3 - padded.size() : 0, '0');
    const std::string key = period + word + padded;
    std::string batch = "INSERT INTO D6601 (NOID, PZQJ, PZZ, PZZ_H, PZZ_Z, BDATE, USER_ID, T) "
                        "VALUES ('" + key + "','" + period + "','" + word + "','" +
                        std::to_string(number) + "','1','" + period + "-15','admin',1);";
    int inx = 0;
    for (const Line& line : lines)
        batch += "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX) VALUES ('" + key + "','摘要','" +
                 line.account + "','" + line.debit + "','" + line.credit + "'," +
                 std::to_string(inx++) + ");";
    data_->execute(batch, {"661", key, "Add"});
    return key;
}

void Ledger::post() {
    const auto period = host::Period::parse(value("SELECT PARAM FROM D6600 WHERE ID = 2"));
    data_->execute(module::posting_batch(*period), {"663", period->to_text(), "Edit"});
}

void Ledger::unpost() {
    const auto period = host::Period::parse(value("SELECT PARAM FROM D6600 WHERE ID = 2"));
    data_->execute(module::unposting_batch(*period), {"663", period->to_text(), "Edit"});
}

void Ledger::set_period(const host::Period& period, const std::string& key) {
    data_->execute("UPDATE D6600 SET PARAM='" + period.to_text() + "' WHERE ID=2;",
                   {"668", key, "Edit"});
}

void Ledger::close_period() {
    const auto period = host::Period::parse(value("SELECT PARAM FROM D6600 WHERE ID = 2"));
    set_period(period->next(), "期末结帐" + period->to_text());
}

void Ledger::take_closing_back() {
    const auto period = host::Period::parse(value("SELECT PARAM FROM D6600 WHERE ID = 2"));
    set_period(period->previous(), "期末反结帐" + period->to_text());
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

std::string Ledger::hints() {
    std::string all;
    const automation::Audit audit = *automation::audit_books(*session_);
    for (const automation::Finding& hint : audit.hints)
        all += hint.check + ": " + hint.text + "\n";
    return all;
}

bool Ledger::finds(const std::string& check, const std::string& part) {
    for (const auto& finding : automation::check_books(*session_))
        if (finding.check == check && finding.text.find(part) != std::string::npos) return true;
    return false;
}

} // namespace tests
