// Copies of changed rows that an outer trigger still reads while an inner statement makes its own.
#pragma once

#include <array>
#include <string>

#include "engines/sqlite/connection/connection.h"
#include "tsql/catalog/catalog.h"

namespace engines {

// Puts the copies of a table aside and back. A statement that fails undoes both by itself.
class KeptCopies {
public:
    // number tells copies of several depths apart.
    KeptCopies(sqlite3* connection, const tsql::CatalogTable& table, int number);
    void put_back();

private:
    sqlite3* connection_;
    std::array<std::string, 2> copies_;
    std::array<std::string, 2> kept_;
};

} // namespace engines
