// Thin ownership around the C interface.
#include "engines/sqlite/connection/connection.h"

#include <cerrno>

namespace engines {

SqliteFailure last_failure(sqlite3* connection) {
    const int code = sqlite3_extended_errcode(connection);
    int system_error = sqlite3_system_errno(connection);
    // A failed write is not always handed on, but it is still the thread's last error.
    if (system_error == 0 && (code & 0xFF) == SQLITE_IOERR) system_error = errno;
    return SqliteFailure(code, system_error, sqlite3_errmsg(connection));
}

void throw_last_error(sqlite3* connection) {
    throw last_failure(connection);
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
