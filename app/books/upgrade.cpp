// Compares the database with the schema and writes what differs.
#include "app/books/upgrade.h"

#include <algorithm>

#include "app/books/books_version.h"
#include "app/books/schema_differences.h"
#include "app/data/error_sentence.h"
#include "app/data/log_entry.h"
#include "app/login/standard_roles.h"
#include "app/refusal.h"

namespace app {

namespace {

[[noreturn]] void refuse(engines::Session& session, const std::string& reason) {
    if (session.transaction_depth() > 0) session.rollback();
    throw Refusal("帐套不能升级到本程序的版本: " + reason);
}

[[noreturn]] void refuse(engines::Session& session, const engines::Error& error) {
    refuse(session, sentence_for(error) + " " + error.text);
}

void refuse_newer(engines::Session& session) {
    const std::string too_new = why_too_new(session);
    if (!too_new.empty()) refuse(session, too_new);
}

void require(engines::Session& session, const engines::Outcome& outcome) {
    if (!outcome.ok()) refuse(session, *outcome.error);
}

void run(engines::Session& session, std::string_view batch) {
    engines::ResultReceiver nobody;
    require(session, session.execute(batch, nobody));
}

void create(engines::Session& session, const schema::Object& object) {
    run(session, object.text);
    if (object.name == "SYS_ROLE_RIGHT") run(session, standard_roles_batch());
    if (object.name == "SYS_LOG_HEAD") require(session, begin_log_head(session));
}

// Tables first, since the rest reads them; texts that change go before any of them comes, so that
// none is bound to what another was before.
void write(engines::Session& session, const SchemaDifferences& found) {
    for (const schema::Object& object : found.missing)
        if (object.is_table()) create(session, object);
    for (const TableAddition& addition : found.additions) run(session, addition.statement);
    for (auto object = found.changed.rbegin(); object != found.changed.rend(); ++object)
        run(session, "DROP " + std::string(object->kind) + " " + std::string(object->name));
    for (const schema::Object& object : schema::objects())
        if (!object.is_table() && found.has_module(object.name)) create(session, object);
    run(session, write_version());
}

// What was missing is named in the log, and what was changed.
std::string told(const SchemaDifferences& found) {
    std::string text = "帐套版本 " + std::to_string(schema::version);
    const auto list = [&text](const char* what, const auto& names, const auto& name_of) {
        for (std::size_t at = 0; at < names.size(); ++at)
            text += (at == 0 ? what : std::string(",")) + std::string(name_of(names[at]));
    };
    const auto name = [](const schema::Object& object) { return object.name; };
    list(";新建 ", found.missing, name);
    list(";增加 ", found.additions, [](const TableAddition& added) { return added.name; });
    list(";更新 ", found.changed, name);
    return text;
}

} // namespace

void bring_up_to_date(engines::Session& session, const host::Clock& clock,
                      const std::string& user) {
    try {
        refuse_newer(session);
        if (differences(session).none()) return;
        require(session, session.begin());
        // Looked at again: somebody else may have been quicker, with this program or a newer one.
        refuse_newer(session);
        const SchemaDifferences found = differences(session);
        if (found.none()) return session.rollback();
        write(session, found);
        require(session, append_log_row(session, clock.now(), user, {"books", "", "Upgrade"},
                                        told(found)));
        require(session, session.commit());
    } catch (const engines::Failure& failure) {
        refuse(session, failure.error());
    }
}

} // namespace app
