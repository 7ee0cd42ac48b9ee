// Asks the database what it holds, all objects in one query.
#include "app/books/schema_differences.h"

#include <algorithm>

#include "app/books/books_version.h"
#include "automation/sql/collected_result.h"
#include "host/values/sql_text.h"

namespace app {

namespace {

std::string id_of(std::string_view name) {
    return "OBJECT_ID(" + host::quoted(std::string(name)) + ")";
}

// One row: of each object its definition, of a table whether it is there. The login waits for it.
std::string question(const std::vector<schema::Object>& objects) {
    std::string select;
    for (const schema::Object& object : objects) {
        select += select.empty() ? "SELECT " : ",";
        select += object.is_table() ? "OBJECT_NAME(" + id_of(object.name) + ")"
                                    : "OBJECT_DEFINITION(" + id_of(object.name) + ")";
    }
    return select;
}

void add_missing_columns(engines::Session& session, const schema::Object& table,
                         std::vector<TableAddition>& additions) {
    const std::string name(table.name);
    const auto held = automation::collect(session, "SELECT TOP 0 * FROM " + name);
    if (!held.outcome.ok()) throw engines::Failure(*held.outcome.error);
    const auto& columns = held.sets.at(0).columns;
    for (const schema::TablePart& column : schema::parts_of(table).columns)
        if (std::ranges::find(columns, column.name) == columns.end())
            additions.push_back({name + "." + std::string(column.name),
                                 "ALTER TABLE " + name + " ADD " + std::string(column.text)});
}

void add_missing_indexes(engines::Session& session, const schema::Object& table,
                         std::vector<TableAddition>& additions) {
    for (const schema::TablePart& index : schema::parts_of(table).indexes) {
        const auto held = automation::rows_of(
            session, "SELECT INDEXPROPERTY(" + id_of(table.name) + "," +
                         host::quoted(std::string(index.name)) + ",'IndexID')");
        if (!held[0][0])
            additions.push_back({std::string(index.name), std::string(index.text)});
    }
}

} // namespace

bool SchemaDifferences::has_module(std::string_view name) const {
    const auto named = [&](const schema::Object& object) { return object.name == name; };
    return std::ranges::any_of(changed, named) || std::ranges::any_of(missing, named);
}

SchemaDifferences differences(engines::Session& session) {
    SchemaDifferences found;
    const std::vector<schema::Object> objects = schema::objects();
    const automation::TextRow held = automation::rows_of(session, question(objects)).front();
    found.unnumbered = version_of(session) != schema::version;
    for (std::size_t at = 0; at < objects.size(); ++at) {
        const schema::Object& object = objects[at];
        if (!held[at]) {
            found.missing.push_back(object);
        } else if (!object.is_table()) {
            if (schema::definition_of(*held[at]) != schema::definition_of(object.text))
                found.changed.push_back(object);
        } else if (found.unnumbered) {
            add_missing_columns(session, object, found.additions);
            add_missing_indexes(session, object, found.additions);
        }
    }
    return found;
}

} // namespace app
