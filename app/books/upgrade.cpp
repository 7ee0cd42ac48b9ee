// Compares the database with the schema and creates what is missing.
#include "app/books/upgrade.h"

#include <algorithm>

#include "app/data/error_sentence.h"
#include "app/data/log_entry.h"
#include "app/login/standard_roles.h"
#include "app/refusal.h"
#include "automation/sql/collected_result.h"
#include "host/values/sql_text.h"
#include "schema/schema.h"

namespace app {

namespace {

void require(engines::Session& session, const engines::Outcome& outcome) {
    if (outcome.ok()) return;
    session.rollback();
    throw Refusal("帐套不能升级到本程序的版本: " + sentence_for(*outcome.error) + " " +
                  outcome.error->text);
}

// One statement for all objects: the login waits for it.
std::vector<schema::Object> missing_in(engines::Session& session) {
    const std::vector<schema::Object> objects = schema::objects();
    std::string select = "SELECT ";
    for (const schema::Object& object : objects)
        select += (select.size() == 7 ? "OBJECT_ID(" : ",OBJECT_ID(") + host::quoted(object.name) +
                  ")";
    const automation::TextRow found = automation::rows_of(session, select).front();
    std::vector<schema::Object> missing;
    for (std::size_t at = 0; at < objects.size(); ++at)
        if (!found[at]) missing.push_back(objects[at]);
    return missing;
}

} // namespace

void create_what_is_missing(engines::Session& session, const host::Clock& clock,
                            const std::string& user) {
    if (missing_in(session).empty()) return;
    engines::ResultReceiver nobody;
    require(session, session.begin());
    std::string created;
    // Looked up again: another administrator may have been quicker.
    for (const schema::Object& object : missing_in(session)) {
        require(session, session.execute(object.text, nobody));
        created += (created.empty() ? "" : ",") + std::string(object.name);
        if (object.name == "SYS_ROLE_RIGHT")
            require(session, session.execute(standard_roles_batch(), nobody));
        if (object.name == "SYS_LOG_HEAD") require(session, begin_log_head(session));
    }
    require(session, append_log_row(session, clock.now(), user, {"books", "", "Upgrade"}, created));
    require(session, session.commit());
}

} // namespace app
