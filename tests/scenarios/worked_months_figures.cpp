// Months of bookkeeping whose figures were worked out by hand: what the books then show.
#include <gtest/gtest.h>

#include <map>

#include "app/books/open.h"
#include "automation/check/check.h"
#include "tests/scenarios/statement_sheet.h"
#include "tests/scenarios/worked_months.h"

namespace tests {

using nlohmann::json;

namespace {

// By the line of the reclassified balance sheet, per layout: parties whose balance lies on the
// other side are shown among the advances, and the other way round.
struct Reclassified {
    const char* line;
    const char* formula;
};
const char* const receivable = "fjf(%C,'1131','1131')+fjf(%C,'2131','2131')-fasc(%C,'1141','1141')";
const char* const received_in_advance = "fdf(%C,'1131','1131')+fdf(%C,'2131','2131')";
const char* const paid_in_advance = "fjf(%C,'2121','2121')+fjf(%C,'1151','1151')";
const char* const payable = "fdf(%C,'2121','2121')+fdf(%C,'1151','1151')";

const std::map<std::string, std::vector<Reclassified>>& reclassified_lines() {
    static const std::map<std::string, std::vector<Reclassified>> lines = {
        {"样式1", {{"6", receivable}, {"71", received_in_advance}, {"8", paid_in_advance},
                   {"70", payable}}},
        {"样式2", {{"4", receivable}, {"34", received_in_advance}, {"5", paid_in_advance},
                   {"33", payable}}},
        {"样式3", {{"5", receivable}, {"40", received_in_advance}, {"7", paid_in_advance},
                   {"39", payable}}}};
    return lines;
}

std::string upper(const char* name) {
    std::string text = name;
    for (char& letter : text) {
        if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
    }
    return text;
}

constexpr const char* sums[] = {"b1", "b2", "c1", "c2", "d1", "d2"};

bool is_zero(const std::string& amount) {
    return amount.find_first_of("123456789") == std::string::npos;
}

} // namespace

void WorkedMonths::expect_sound(const std::string& when) {
    const auto session = app::open_books(books_.file().string(), app::Access::ReadOnly);
    for (const automation::Finding& finding : automation::check_books(*session)) {
        ADD_FAILURE() << "after " << when << ": " << finding.check << " " << finding.text;
    }
}

// ---- the carry-forward

void WorkedMonths::compare_profit_accounts(const json& expected) {
    std::map<std::string, std::string> shown, wanted;
    for (const Row& row : anna_.profit_accounts()) {
        if (!is_zero(row.at("E"))) shown[row.at("A1")] = row.at("FX") + " " + row.at("E");
    }
    for (const json& row : expected) {
        if (is_zero(text_in(row, "e"))) continue;
        wanted[text_in(row, "km_id")] = text_in(row, "fx") + " " + text_in(row, "e");
    }
    EXPECT_EQ(shown, wanted) << "profit and loss accounts before the carry-forward";
}

void WorkedMonths::compare_carry_forward(const std::string& period, const json& expected) {
    const std::string key = period + "记" + text_in(expected, "number");
    EXPECT_EQ(books_.table("SELECT PZQJ,PZZ,PZZ_H,PZZ_Z,CONVERT(nvarchar(10),BDATE,120) AS BDATE,"
                           "T,D,T_SY FROM D6601 WHERE NOID='" + key + "'"),
              (Rows{{{"PZQJ", period},
                     {"PZZ", "记"},
                     {"PZZ_H", text_in(expected, "number")},
                     {"PZZ_Z", "0"},
                     {"BDATE", text_in(expected, "date")},
                     {"T", "0"},
                     {"D", "0"},
                     {"T_SY", "1"}}}));
    Rows wanted;
    for (const json& line : expected.at("lines")) {
        wanted.push_back({{"INX", text_in(line, "inx")},
                          {"KM_ID", text_in(line, "km_id")},
                          {"ZY", text_in(expected, "zy")},
                          {"J", text_in(line, "j")},
                          {"D", text_in(line, "d")}});
    }
    EXPECT_EQ(books_.table("SELECT INX,KM_ID,ZY,J,D FROM D6601A WHERE NOID='" + key +
                           "' ORDER BY INX"),
              wanted);
}

// ---- the figures of a period

void WorkedMonths::compare_figures(const std::string& period, const json& expected) {
    compare_trial_balance(period, expected);
    if (expected.contains("trial_balance")) compare_balances(period, expected.at("trial_balance"));
    if (expected.contains("account_summary")) {
        compare_summary(period, expected.at("account_summary"));
    }
    for (const char* statement : {"balance_sheet", "income_statement", "cash_flow"}) {
        if (!expected.contains(statement)) continue;
        compare_statement(period, statement, expected.at(statement));
    }
    if (expected.contains("balance_sheet_reclassified")) {
        compare_reclassified(period, expected.at("balance_sheet_reclassified"));
    }
    if (expected.contains("ledgers")) compare_ledgers(period, expected.at("ledgers"));
    if (expected.contains("trial_balance")) {
        compare_general_ledger(period, expected.at("trial_balance"));
    }
}

void WorkedMonths::compare_trial_balance(const std::string& period, const json& expected) {
    if (!expected.contains("trial_balance")) return;
    Row footers;
    std::map<std::string, Row> shown;
    for (const Row& row : anna_.trial_balance(period, 5, &footers)) shown[row.at("KM_ID")] = row;
    std::size_t compared = 0;
    for (const json& wanted : expected.at("trial_balance")) {
        const std::string account = text_in(wanted, "km_id");
        const bool idle = std::all_of(std::begin(sums), std::end(sums), [&](const char* sum) {
            return is_zero(text_in(wanted, sum));
        });
        if (idle && !shown.contains(account)) continue;
        ++compared;
        for (const char* sum : sums) {
            EXPECT_EQ(shown[account][upper(sum)], text_in(wanted, sum))
                << "trial balance of " << account << ", " << sum;
        }
    }
    EXPECT_EQ(shown.size(), compared) << "accounts in the trial balance";
    const json totals = expected.value("trial_balance_totals", json::object());
    for (const char* sum : sums) {
        if (!totals.contains(sum)) continue;
        EXPECT_EQ(footers[upper(sum)], text_in(totals, sum)) << "trial balance, total " << sum;
    }
}

void WorkedMonths::compare_balances(const std::string& period, const json& expected) {
    std::map<std::string, Row> kept; // "1001 0"
    for (const Row& row :
         books_.table("SELECT KM_ID,INX,J,D FROM D6602 WHERE QJ='" + period + "'")) {
        kept[row.at("KM_ID") + " " + row.at("INX")] = row;
    }
    for (const json& wanted : expected) {
        const std::string account = text_in(wanted, "km_id");
        EXPECT_EQ(kept[account + " 0"]["J"], text_in(wanted, "c1")) << account;
        EXPECT_EQ(kept[account + " 0"]["D"], text_in(wanted, "c2")) << account;
        EXPECT_EQ(kept[account + " 1"]["J"], text_in(wanted, "d1")) << account;
        EXPECT_EQ(kept[account + " 1"]["D"], text_in(wanted, "d2")) << account;
    }
}

// ---- statements

namespace {

// A statement's form, and where its grid shows the columns of a worked month.
struct StatementForm {
    struct Column {
        const char* name;   // "期末"
        const char* line;   // field of the line number
        const char* amount; // field of the amount
    };
    int code;
    std::vector<Column> columns;
};

const std::map<std::string, StatementForm>& statement_forms() {
    static const std::map<std::string, StatementForm> forms = {
        {"balance_sheet",
         {671,
          {{"年初", "A2", "A3"}, {"期末", "A2", "A4"}, {"年初", "B2", "B3"}, {"期末", "B2", "B4"}}}},
        {"income_statement", {673, {{"本月", "A2", "A3"}, {"本年累计", "A2", "A4"}}}},
        {"cash_flow", {672, {{"本年累计", "A2", "A3"}, {"本月", "A2", "A4"}}}}};
    return forms;
}

using Amounts = std::map<std::string, std::string>; // by "8 期末", a line and a column

Amounts amounts_in(const Rows& rows, const StatementForm& form) {
    Amounts amounts;
    for (const Row& row : rows) {
        for (const StatementForm::Column& column : form.columns) {
            const std::string& line = row.at(column.line);
            if (line.empty()) continue;
            amounts[line + " " + column.name] = money(cents_of(row.at(column.amount)));
        }
    }
    return amounts;
}

void compare_lines(const Amounts& shown, const std::string& what, const json& expected) {
    for (const auto& [line, columns] : expected.items()) {
        for (const auto& [column, amount] : columns.items()) {
            const auto found = shown.find(line + " " + column);
            EXPECT_EQ(found == shown.end() ? "no such line" : found->second,
                      amount.get<std::string>())
                << what << ", line " << line << ", " << column;
        }
    }
}

} // namespace

void WorkedMonths::compare_statement(const std::string& period, const char* name,
                                     const json& expected) {
    const StatementForm& form = statement_forms().at(name);
    const bool one_layout = form.code == 672;
    const json layouts = one_layout ? json{{"", expected}} : expected;
    for (const auto& [layout, lines] : layouts.items()) {
        compare_lines(amounts_in(anna_.statement(form.code, layout, period), form),
                      name + (" " + layout), lines);
    }
}

void WorkedMonths::compare_reclassified(const std::string& period, const json& expected) {
    for (const auto& [layout, lines] : expected.items()) {
        StatementSheet sheet(books_, layout.back() - '0', period); // 样式1 to 样式3
        for (const Reclassified& one : reclassified_lines().at(layout)) {
            sheet.replace(one.line, one.formula);
        }
        Amounts amounts;
        for (const auto& [line, columns] : lines.items()) {
            for (const char* column : {"年初", "期末"}) {
                amounts[line + " " + column] = money(sheet.value(line, column));
            }
        }
        compare_lines(amounts, "reclassified balance sheet " + layout, lines);
    }
}

} // namespace tests
