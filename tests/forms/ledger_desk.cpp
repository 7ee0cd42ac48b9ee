// A person on real books of March 2024, with the everyday steps as single calls.
#include "tests/forms/ledger_desk.h"

namespace tests {

namespace {

BooksOptions march() {
    BooksOptions options;
    options.start = "2024-03";
    options.today = "2024-03-15";
    return options;
}

} // namespace

LedgerDesk::LedgerDesk() : books(march()), anna(books.data(), books.person()) {}

void LedgerDesk::TearDown() {
    if (written_past_forms) return;
    EXPECT_EQ(books.findings(), "");
}

void LedgerDesk::new_voucher() {
    anna.open(661);
    anna.click("Act_Add");
    anna.expect_active("TF6661_1");
}

void LedgerDesk::save_voucher(const std::string& debit, const std::string& credit,
                              const std::string& amount) {
    anna.line(0, {{"ZY", "往来"}, {"KM_ID", debit}, {"J", amount}});
    anna.line(1, {{"ZY", "往来"}, {"KM_ID", credit}, {"D", amount}});
    anna.click("Act_Save");
}

void LedgerDesk::audit_all() {
    anna.open(662);
    const int count = anna.row_count();
    for (int row = 0; row < count; ++row) {
        anna.request({{"op", "row"}, {"control", "DBGridEh"}, {"row", row}, {"mark", true}});
    }
    anna.click("Act_Audit");
    anna.forget_messages();
    anna.close();
}

void LedgerDesk::post() {
    anna.open(663);
    anna.click("btn_ok");
    anna.expect_message("登帐完成!");
    anna.click("btn_Cancel");
}

void LedgerDesk::unpost() {
    anna.open(663);
    anna.click("btn_re");
    anna.expect_message("反登帐完成!");
    anna.click("btn_Cancel");
}

void LedgerDesk::trial_balance(const std::string& level) {
    anna.open(689);
    anna.set("EDT3", level);
    anna.click("btn_ok");
    anna.expect_active("TF6689");
}

Row LedgerDesk::account(const std::string& code) {
    for (const Row& row : anna.rows()) {
        if (row.at("KM_ID") == code) return row;
    }
    return {};
}

} // namespace tests
