// Types the conditions into the form and reads its grid.
#include "app/workplace/printed_trial_balance.h"

#include "app/login/password_source.h"
#include "app/refusal.h"
#include "app/workplace/run_driver.h"
#include "app/workplace/scripted_person.h"
#include "app/workplace/workplace.h"
#include "automation/sql/text_table.h"

namespace app {

namespace {

using nlohmann::json;

struct PrintedColumn {
    const char* field;
    const char* title;
};

constexpr PrintedColumn columns[] = {
    {"KM_ID", "科目"},        {"KM_NAME", "会计科目"},  {"B1", "期初借方"}, {"B2", "期初贷方"},
    {"C1", "本期借方"},       {"C2", "本期贷方"},       {"D1", "期末借方"}, {"D2", "期末贷方"},
};

std::vector<json> conditions(const std::string& period, int level) {
    const auto set = [](const char* control, const std::string& value) {
        return json{{"op", "set"}, {"control", control}, {"value", value}};
    };
    return {{{"op", "open"}, {"code", 689}},
            set("EDT1", period.substr(0, 4)),
            set("EDT2", std::to_string(std::stoi(period.substr(5)))),
            set("EDT3", std::to_string(level)),
            {{"op", "click"}, {"control", "btn_ok"}},
            {{"op", "rows"}, {"control", "DBGridEh"}, {"from", 0}, {"count", 100000}},
            {{"op", "footer"}, {"control", "DBGridEh"}}};
}

automation::TextRow printed(const json& cells) {
    automation::TextRow row;
    for (const PrintedColumn& column : columns) row.emplace_back(cells.value(column.field, ""));
    return row;
}

automation::ResultSet table_of(const json& rows, const json& footer) {
    automation::ResultSet table;
    for (const PrintedColumn& column : columns) table.columns.emplace_back(column.title);
    for (const json& row : rows) table.rows.push_back(printed(row));
    table.rows.push_back(printed(footer));
    table.rows.back()[0] = "合计";
    table.rows.back()[1] = "";
    return table;
}

bool balances(const json& footer) {
    const auto same = [&](const char* a, const char* b) {
        return footer.value(a, "") == footer.value(b, "");
    };
    return same("B1", "B2") && same("C1", "C2") && same("D1", "D2");
}

std::string current_period(engines::Session& session) {
    const auto rows = automation::rows_of(session, "SELECT PARAM FROM D6600 WHERE ID = 2");
    const std::string period = rows.empty() ? "" : rows[0][0].value_or("");
    if (period.size() != 7) throw Refusal("帐套还没有启用,没有试算平衡表!");
    return period;
}

} // namespace

void print_trial_balance(const std::string& books, int level, std::ostream& out) {
    Workplace work(books, std::nullopt);
    work.log_in("admin", [] { return given_password("用户 admin 的密码: "); });
    const std::string period = current_period(work.session());
    ScriptedPerson person(conditions(period, level));
    run_driver(person, person);
    if (!person.trouble().empty()) throw Refusal("试算平衡表没有打开: " + person.trouble());
    const json& rows = person.answer_to("rows").at("rows");
    const json& footer = person.answer_to("footer").at("footer");
    out << work.company() << "  " << period << "  试算平衡表\n\n";
    automation::print_table(table_of(rows, footer), out);
    out << '\n' << (balances(footer) ? "试算平衡" : "试算不平衡") << std::endl;
}

} // namespace app
