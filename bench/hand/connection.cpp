// A bare SQLite connection and its prepared statements.
#include "bench/hand/connection.h"

#include <stdexcept>

#include "engines/sqlite/collation/compare_text.h"

namespace bench::hand {

namespace {

void check(sqlite3* database, int code) {
    if (code != SQLITE_OK && code != SQLITE_ROW && code != SQLITE_DONE)
        throw std::runtime_error(sqlite3_errmsg(database));
}

int compare(void*, int left_size, const void* left, int right_size, const void* right) {
    return engines::compare_text({static_cast<const char*>(left), std::size_t(left_size)},
                                 {static_cast<const char*>(right), std::size_t(right_size)});
}

} // namespace

Connection::Connection(const std::string& file) {
    check(handle_, sqlite3_open(file.c_str(), &handle_));
    check(handle_, sqlite3_create_collation(handle_, "ZF", SQLITE_UTF8, nullptr, compare));
    run("PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL; PRAGMA cache_size=-65536");
}

Connection::~Connection() { sqlite3_close(handle_); }

void Connection::run(const char* sql) {
    check(handle_, sqlite3_exec(handle_, sql, nullptr, nullptr, nullptr));
}

Statement::Statement(const Connection& connection, const char* sql)
    : database_(connection.handle()) {
    check(database_, sqlite3_prepare_v3(database_, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement_,
                                        nullptr));
}

Statement::~Statement() { sqlite3_finalize(statement_); }

Statement& Statement::bind(int index, std::int64_t value) {
    check(database_, sqlite3_bind_int64(statement_, index, value));
    return *this;
}

Statement& Statement::bind(int index, std::string_view text) {
    check(database_,
          sqlite3_bind_text(statement_, index, text.data(), int(text.size()), SQLITE_STATIC));
    return *this;
}

bool Statement::step() {
    const int code = sqlite3_step(statement_);
    check(database_, code);
    return code == SQLITE_ROW;
}

void Statement::run() {
    while (step()) {}
    reset();
}

void Statement::reset() { sqlite3_reset(statement_); }

std::string_view Statement::text(int column) const {
    return {reinterpret_cast<const char*>(sqlite3_column_text(statement_, column)),
            std::size_t(sqlite3_column_bytes(statement_, column))};
}

} // namespace bench::hand
