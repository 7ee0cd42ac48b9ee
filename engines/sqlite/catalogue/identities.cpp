// Counters in memory, written once a transaction.
#include "engines/sqlite/catalogue/identities.h"

#include "engines/sqlite/raise.h"

namespace engines {
namespace {

tsql::IdentityColumn identity_of(const tsql::CatalogTable& table) {
    const int ordinal = table.identity_column();
    if (ordinal < 0) return {};
    return table.columns[static_cast<std::size_t>(ordinal)].identity.value_or(
        tsql::IdentityColumn{});
}

void bind_text(sqlite3_stmt* statement, int index, const std::string& text) {
    sqlite3_bind_text64(statement, index, text.data(), text.size(), SQLITE_STATIC, SQLITE_UTF8);
}

} // namespace

Identities::Counter& Identities::counter_of(const tsql::CatalogTable& table) {
    const auto found = counters_.find(table.name);
    if (found != counters_.end()) return found->second;
    Counter counter;
    counter.temporary = table.temporary;
    if (!table.temporary) {
        const StatementHandle read =
            prepare(connection_, "SELECT value FROM zf_counter WHERE name = ?1", false);
        bind_text(read.get(), 1, table.name);
        const int code = sqlite3_step(read.get());
        if (code == SQLITE_ROW)
            counter.last = sqlite3_column_int64(read.get(), 0);
        else if (code != SQLITE_DONE)
            throw_last_error(connection_);
    }
    return counters_.emplace(table.name, counter).first->second;
}

std::int64_t Identities::next(const tsql::CatalogTable& table) {
    const tsql::IdentityColumn identity = identity_of(table);
    Counter& counter = counter_of(table);
    std::int64_t value = identity.seed;
    if (counter.last && __builtin_add_overflow(*counter.last, identity.increment, &value))
        raise_overflow("bigint");
    counter.last = value;
    counter.changed = any_changed_ = true;
    return value;
}

void Identities::seen(const tsql::CatalogTable& table, std::int64_t value) {
    Counter& counter = counter_of(table);
    const bool upwards = identity_of(table).increment > 0;
    if (counter.last && (upwards ? value <= *counter.last : value >= *counter.last)) return;
    counter.last = value;
    counter.changed = any_changed_ = true;
}

std::optional<std::int64_t> Identities::current(const tsql::CatalogTable& table) {
    return counter_of(table).last;
}

void Identities::reset(const tsql::CatalogTable& table) {
    Counter& counter = counter_of(table);
    counter.last.reset();
    counter.changed = any_changed_ = true;
}

void Identities::flush() {
    if (!any_changed_) return;
    const StatementHandle write = prepare(
        connection_, "INSERT OR REPLACE INTO zf_counter (name, value) VALUES (?1, ?2)", false);
    const StatementHandle erase =
        prepare(connection_, "DELETE FROM zf_counter WHERE name = ?1", false);
    for (auto& [name, counter] : counters_) {
        if (!counter.changed || counter.temporary) continue;
        sqlite3_stmt* statement = counter.last ? write.get() : erase.get();
        bind_text(statement, 1, name);
        if (counter.last) sqlite3_bind_int64(statement, 2, *counter.last);
        const int code = sqlite3_step(statement);
        sqlite3_reset(statement);
        if (code != SQLITE_DONE) throw_last_error(connection_);
        counter.changed = false;
    }
    any_changed_ = false;
}

void Identities::forget() {
    std::erase_if(counters_, [](const auto& entry) { return !entry.second.temporary; });
    any_changed_ = false;
}

} // namespace engines
