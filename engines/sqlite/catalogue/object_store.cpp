// The engine's own tables: zf_object for definitions, zf_counter for identities and the version.
#include "engines/sqlite/catalogue/object_store.h"

#include "tsql/compiler.h"

namespace engines {
namespace {

void bind_text(sqlite3_stmt* statement, int index, const std::string& text) {
    sqlite3_bind_text64(statement, index, text.data(), text.size(), SQLITE_STATIC, SQLITE_UTF8);
}

void run(sqlite3* connection, sqlite3_stmt* statement) {
    const int code = sqlite3_step(statement);
    sqlite3_reset(statement);
    if (code != SQLITE_DONE && code != SQLITE_ROW) throw_last_error(connection);
}

std::string text_at(sqlite3_stmt* statement, int column) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return text == nullptr
               ? ""
               : std::string(text,
                             static_cast<std::size_t>(sqlite3_column_bytes(statement, column)));
}

bool has_own_tables(sqlite3* connection) {
    return integer_of(connection, "SELECT count(*) FROM sqlite_schema WHERE type = 'table' AND"
                                  " name IN ('zf_object', 'zf_counter')") == 2 &&
           integer_of(connection, "SELECT count(*) FROM zf_counter WHERE name = ''") == 1;
}

} // namespace

// Looked at before it is written: books that are in order open while somebody else writes.
void ObjectStore::prepare_tables() {
    if (has_own_tables(connection_)) return;
    run_text(connection_,
             "CREATE TABLE IF NOT EXISTS zf_object (name TEXT PRIMARY KEY COLLATE NOCASE,"
             " kind INTEGER NOT NULL, definition TEXT NOT NULL) WITHOUT ROWID;"
             "CREATE TABLE IF NOT EXISTS zf_counter (name TEXT PRIMARY KEY COLLATE NOCASE,"
             " value INTEGER NOT NULL) WITHOUT ROWID;"
             "INSERT OR IGNORE INTO zf_counter VALUES ('', 1)");
}

void ObjectStore::load(tsql::Catalog& catalog) {
    tsql::CatalogChange change;
    const StatementHandle rows =
        prepare(connection_, "SELECT kind, name, definition FROM zf_object", false);
    int code = SQLITE_OK;
    while ((code = sqlite3_step(rows.get())) == SQLITE_ROW) {
        tsql::StoredObject stored;
        stored.kind = sqlite3_column_int(rows.get(), 0);
        stored.name = text_at(rows.get(), 1);
        stored.definition = text_at(rows.get(), 2);
        change.put.push_back(tsql::Compiler::load(stored));
    }
    if (code != SQLITE_DONE) throw_last_error(connection_);
    for (const auto& [name, object] : catalog.objects()) change.drop.push_back(name);
    catalog.apply(change);
}

void ObjectStore::save(const tsql::CatalogChange& change) {
    if (change.temporary) return;
    const StatementHandle drop =
        prepare(connection_, "DELETE FROM zf_object WHERE name = ?1", false);
    const StatementHandle forget =
        prepare(connection_, "DELETE FROM zf_counter WHERE name = ?1 AND name <> ''", false);
    for (const std::string& name : change.drop) {
        bind_text(drop.get(), 1, name);
        run(connection_, drop.get());
        bool comes_back = false;
        for (const auto& object : change.put)
            comes_back |= tsql::fold_name(object->name) == tsql::fold_name(name);
        if (comes_back) continue;
        bind_text(forget.get(), 1, name);
        run(connection_, forget.get());
    }
    const StatementHandle put = prepare(connection_,
                                        "INSERT OR REPLACE INTO zf_object (name, kind, definition)"
                                        " VALUES (?1, ?2, ?3)",
                                        false);
    for (const auto& object : change.put) {
        const tsql::StoredObject stored = tsql::Catalog::store(*object);
        bind_text(put.get(), 1, stored.name);
        sqlite3_bind_int(put.get(), 2, stored.kind);
        bind_text(put.get(), 3, stored.definition);
        run(connection_, put.get());
    }
    // By chance rather than by counting, so that a number undone and given again by another
    // connection is not taken for one's own.
    sqlite3_randomness(sizeof saved_version_, &saved_version_);
    run_text(connection_, "UPDATE zf_counter SET value = " + std::to_string(saved_version_) +
                              " WHERE name = ''");
}

std::int64_t ObjectStore::version() {
    if (!version_) version_ = prepare(connection_, "SELECT value FROM zf_counter WHERE name = ''");
    const int code = sqlite3_step(version_.get());
    const std::int64_t value = code == SQLITE_ROW ? sqlite3_column_int64(version_.get(), 0) : 0;
    sqlite3_reset(version_.get());
    if (code != SQLITE_ROW && code != SQLITE_DONE) throw_last_error(connection_);
    return value;
}

} // namespace engines
