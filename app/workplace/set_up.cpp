// Opens fresh books at a period, as a person would.
#include "app/workplace/set_up.h"

#include "app/refusal.h"
#include "app/workplace/run_driver.h"
#include "app/workplace/scripted_person.h"
#include "app/workplace/workplace.h"
#include "automation/sql/collected_result.h"

namespace app {

namespace {

using nlohmann::json;

json click(const char* control) { return {{"op", "click"}, {"control", control}}; }

// 会计科目初始, its trial balance, its posting.
std::vector<json> open_at(const host::Period& start) {
    return {{{"op", "open"}, {"code", 699}},
            click("LA2"),
            click("btn_ok"),
            {{"op", "set"}, {"control", "BDATE"}, {"value", start.first_day().to_text()}},
            click("btn_ok")};
}

std::string current_period(engines::Session& session) {
    const auto rows = automation::rows_of(session, "SELECT PARAM FROM D6600 WHERE ID = 2");
    return rows.empty() ? "" : rows[0][0].value_or("");
}

} // namespace

void set_up_books(const std::string& books, const host::Period& start,
                  const PasswordSource& password) {
    Workplace work(books, {});
    work.log_in("admin", password);
    ScriptedPerson person(open_at(start));
    run_driver(person, person);
    if (!person.trouble().empty()) throw Refusal("初始建帐没有完成: " + person.trouble());
    // A posting that the database refuses only shows a message.
    if (current_period(work.session()) != start.to_text())
        throw Refusal("初始建帐没有完成,请用会计科目初始(699)启用帐套!");
}

} // namespace app
