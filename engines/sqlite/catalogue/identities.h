// Running numbers of identity columns: never given twice, also after rows are deleted.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "engines/sqlite/connection/connection.h"
#include "tsql/catalog/catalog.h"

namespace engines {

// Numbers given inside a transaction become lasting with its commit. The right to write is held
// whenever a number is given, so that two connections never give the same one.
class Identities {
public:
    explicit Identities(sqlite3* connection) : connection_(connection) {}

    std::int64_t next(const tsql::CatalogTable& table);
    // A number given by hand: later ones go on from there.
    void seen(const tsql::CatalogTable& table, std::int64_t value);
    // Last number given, nothing when none was.
    std::optional<std::int64_t> current(const tsql::CatalogTable& table);
    // TRUNCATE TABLE: numbers begin again.
    void reset(const tsql::CatalogTable& table);

    // Writes numbers to the books, before a commit.
    void flush();
    // Forgets what is not written, after a rollback, or when others may have written.
    void forget();

private:
    struct Counter {
        std::optional<std::int64_t> last;
        bool changed = false;
        bool temporary = false;
    };
    Counter& counter_of(const tsql::CatalogTable& table);

    sqlite3* connection_;
    std::map<std::string, Counter, tsql::NameLess> counters_;
    bool any_changed_ = false;
};

} // namespace engines
