// A connection of SQLite and its prepared statements, owned.
#pragma once

#include <sqlite3.h>

#include <memory>
#include <string>
#include <string_view>

#include "engines/error.h"

namespace engines {

struct CloseConnection {
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
};
using ConnectionHandle = std::unique_ptr<sqlite3, CloseConnection>;

struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using StatementHandle = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

// An error of SQLite that nobody explained yet: its code and its words.
class SqliteFailure : public std::runtime_error {
public:
    SqliteFailure(int code, int system_error, const std::string& text)
        : std::runtime_error(text), code(code), system_error(system_error) {}
    int code;         // extended result code
    int system_error; // errno behind it, 0 when there is none
};

// What the connection says of its last error.
SqliteFailure last_failure(sqlite3* connection);
// Throws it.
[[noreturn]] void throw_last_error(sqlite3* connection);

StatementHandle prepare(sqlite3* connection, std::string_view text, bool persistent = true);

// Runs a text of one or more statements that give no rows.
void run_text(sqlite3* connection, const std::string& text);

// The first cell of the first row as integer; nothing gives 0.
std::int64_t integer_of(sqlite3* connection, std::string_view text);
std::string text_of_cell(sqlite3* connection, std::string_view text);

} // namespace engines
