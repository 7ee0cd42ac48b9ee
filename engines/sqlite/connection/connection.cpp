// Thin ownership around the C interface.
#include "engines/sqlite/connection/connection.h"

namespace engines {

void throw_last_error(sqlite3* connection) {
    throw SqliteFailure(sqlite3_extended_errcode(connection), sqlite3_system_errno(connection),
                        sqlite3_errmsg(connection));
}

StatementHandle prepare(sqlite3* connection, std::string_view text, bool persistent) {
    sqlite3_stmt* statement = nullptr;
    const unsigned flags = persistent ? SQLITE_PREPARE_PERSISTENT : 0;
    if (sqlite3_prepare_v3(connection, text.data(), static_cast<int>(text.size()), flags,
                           &statement, nullptr) != SQLITE_OK)
        throw_last_error(connection);
    return StatementHandle(statement);
}

void run_text(sqlite3* connection, const std::string& text) {
    if (sqlite3_exec(connection, text.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw_last_error(connection);
}

std::int64_t integer_of(sqlite3* connection, std::string_view text) {
    const StatementHandle statement = prepare(connection, text, false);
    const int code = sqlite3_step(statement.get());
    if (code != SQLITE_ROW && code != SQLITE_DONE) throw_last_error(connection);
    return code == SQLITE_ROW ? sqlite3_column_int64(statement.get(), 0) : 0;
}

std::string text_of_cell(sqlite3* connection, std::string_view text) {
    const StatementHandle statement = prepare(connection, text, false);
    const int code = sqlite3_step(statement.get());
    if (code != SQLITE_ROW && code != SQLITE_DONE) throw_last_error(connection);
    const auto* cell = sqlite3_column_text(statement.get(), 0);
    return code == SQLITE_ROW && cell != nullptr ? reinterpret_cast<const char*>(cell) : "";
}

} // namespace engines
