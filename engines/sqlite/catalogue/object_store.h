// Keeps the T-SQL text of every object in the books, so that the catalogue is there on open.
#pragma once

#include <cstdint>

#include "engines/sqlite/connection/connection.h"
#include "tsql/catalog/catalog.h"

namespace engines {

class ObjectStore {
public:
    explicit ObjectStore(sqlite3* connection) : connection_(connection) {}

    // Makes the engine's own tables when the books are new.
    void prepare_tables();
    // Fills the catalogue. Throws Failure when a text is not understood.
    void load(tsql::Catalog& catalog);
    // Writes what a definition changed; inside the transaction of the definition.
    void save(const tsql::CatalogChange& change);
    // Another number after every definition, by whichever connection; tells whether a catalogue is
    // stale.
    std::int64_t version();
    // The number of this connection's last definition, which its own catalogue knows.
    std::int64_t saved_version() const { return saved_version_; }

private:
    sqlite3* connection_;
    StatementHandle version_;
    std::int64_t saved_version_ = 0;
};

} // namespace engines
