// Months of bookkeeping whose figures were worked out by hand: what the ledgers then show.
#include <gtest/gtest.h>

#include <map>

#include "host/values/amount.h"
#include "host/values/period.h"
#include "tests/scenarios/worked_months.h"

namespace tests {

using nlohmann::json;

namespace {

// "-12.05" as 12.05 on the other side is not the same figure: texts are compared as they stand.
std::string line_text(const json& row, std::initializer_list<const char*> names) {
    std::string text;
    for (const char* name : names) text += (text.empty() ? "" : " ") + text_in(row, name);
    return text;
}

std::string shown_text(const Row& row) {
    const std::string end = row.at("FX") + " " + row.at("E");
    const std::string amounts = row.at("ZY") + " " + row.at("J") + " " + row.at("D") + " " + end;
    if (row.at("INX") == "-1") return amounts; // the opening, 本期合计, 本年累计
    const std::string number = row.at("PZZ").substr(row.at("PZZ").find('-') + 1);
    return row.at("BDATE") + " " + number + " " + amounts;
}

std::string wanted_text(const json& row, const std::string& period) {
    const std::string kind = text_in(row, "row");
    if (kind == "opening") {
        const bool january = period.ends_with("-01");
        return (january ? "上年结转" : "期初余额") + (" " + text_in(row, "j")) + " " +
               text_in(row, "d") + " " + line_text(row, {"fx", "e"});
    }
    if (kind != "line") return kind + " " + line_text(row, {"j", "d", "fx", "e"});
    return line_text(row, {"date", "number", "zy", "j", "d", "fx", "e"});
}

host::Amount amount_in(const json& object, const char* name) {
    return host::Amount::parse(text_in(object, name)).value();
}

bool is_cash(const std::string& account) {
    return account.starts_with("1001") || account.starts_with("1002");
}

} // namespace

// ---- the account summary

void WorkedMonths::compare_summary(const std::string& period, const json& expected) {
    const host::Period month = host::Period::parse(period).value();
    std::string conditions;
    std::map<std::string, std::string> shown, wanted;
    for (const Row& row : anna_.account_summary(month.first_day().to_text(),
                                                month.last_day().to_text(), &conditions)) {
        shown[row.at("KM_ID")] = row.at("J") + " " + row.at("D");
    }
    for (const json& row : expected.at("rows")) {
        wanted[text_in(row, "km_id")] = line_text(row, {"j", "d"});
    }
    EXPECT_EQ(shown, wanted) << "account summary";
    const std::string counts = "凭证共：" + text_in(expected, "vouchers") + " 张   ●附件共:" +
                               text_in(expected, "attachments") + " 张";
    EXPECT_NE(conditions.find(counts), std::string::npos) << conditions << "\n" << counts;
}

// ---- the detailed ledger and the journal

void WorkedMonths::compare_ledgers(const std::string& period, const json& expected) {
    for (const auto& [account, rows] : expected.items()) {
        const Rows shown = anna_.detailed_ledger(account, period);
        EXPECT_EQ(shown.size(), rows.size()) << "rows in the ledger of " << account;
        for (std::size_t at = 0; at < shown.size() && at < rows.size(); ++at) {
            EXPECT_EQ(shown_text(shown[at]), wanted_text(rows[at], period))
                << "ledger of " << account;
        }
        if (is_cash(account)) compare_journal(period, account, shown);
    }
}

// The journal has the ledger's lines, each with the accounts on its other side.
void WorkedMonths::compare_journal(const std::string& period, const std::string& account,
                                   const Rows& ledger) {
    const Rows shown = anna_.journal(account, period);
    ASSERT_EQ(shown.size(), ledger.size()) << "rows in the journal of " << account;
    for (std::size_t at = 0; at < shown.size(); ++at) {
        EXPECT_EQ(shown_text(shown[at]), shown_text(ledger[at])) << "journal of " << account;
        if (shown[at].at("INX") == "-1") continue;
        EXPECT_EQ(shown[at].at("KM_ID_DF"), other_side(period, shown[at])) << shown[at].at("PZZ");
    }
}

// As the file has the voucher: full names, in order of the codes.
std::string WorkedMonths::other_side(const std::string& period, const Row& line) const {
    const bool debit = host::Amount::parse(line.at("J")) != host::Amount();
    std::map<std::string, std::string> names;
    for (const json& voucher : file_.at("vouchers")) {
        const std::string number = text_in(voucher, "word") + "-" + text_in(voucher, "number");
        if (text_in(voucher, "period") != period || number != line.at("PZZ")) continue;
        for (const json& other : voucher.at("lines")) {
            if (amount_in(other, debit ? "d" : "j").is_zero()) continue;
            const std::string code = text_in(other, "km_id");
            names[code] = books_.value("SELECT KM_NAME2 FROM D6801 WHERE KM_ID='" + code + "'");
        }
    }
    std::string text;
    for (const auto& [code, name] : names) text += (text.empty() ? "" : ",") + name;
    return text;
}

// ---- the general ledger

// It says account by account what the trial balance says, on the account's own side.
void WorkedMonths::compare_general_ledger(const std::string& period, const json& expected) {
    std::map<std::string, Rows> accounts;
    for (const Row& row : anna_.general_ledger(period)) {
        EXPECT_EQ(row.at("QJ_MONTH"), period);
        accounts[row.at("KM_ID")].push_back(row);
    }
    for (const json& wanted : expected) {
        const std::string account = text_in(wanted, "km_id");
        const Rows& rows = accounts[account];
        ASSERT_EQ(rows.size(), 3U) << "opening, month and year of " << account;
        const bool credit =
            books_.value("SELECT FX FROM D6801 WHERE KM_ID='" + account + "'") == "贷";
        const auto balance = [&](const char* debits, const char* credits) {
            const host::Amount signed_debit =
                amount_in(wanted, debits) - amount_in(wanted, credits);
            return (credit ? -signed_debit : signed_debit).to_text(2);
        };
        EXPECT_EQ(rows[0].at("E"), balance("b1", "b2")) << "opening of " << account;
        EXPECT_EQ(rows[1].at("J"), text_in(wanted, "c1")) << "debits of " << account;
        EXPECT_EQ(rows[1].at("D"), text_in(wanted, "c2")) << "credits of " << account;
        EXPECT_EQ(rows[1].at("E"), balance("d1", "d2")) << "closing of " << account;
        EXPECT_EQ(rows[2].at("E"), rows[1].at("E")) << account;
    }
}

} // namespace tests
