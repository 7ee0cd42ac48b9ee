// Errors of SQLite in the numbers and words of the server.
#pragma once

#include <string_view>

#include "engines/sqlite/connection/connection.h"
#include "tsql/catalog/catalog.h"

namespace engines {

// Which statement failed; the server's texts name it.
enum class StatementVerb : std::uint8_t { other, insert, update, remove };

// The server's error for a failure of SQLite. The catalogue tells a unique index (2601) from a key
// (2627) and gives names as declared.
Error explain(const SqliteFailure& failure, const tsql::Catalog* catalog,
              StatementVerb verb = StatementVerb::other);

} // namespace engines
