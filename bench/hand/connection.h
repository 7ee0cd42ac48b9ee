// The hand-written side: SQLite called directly, as a C++ programmer without our layers would.
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace bench::hand {

// A connection with the settings of the program's own: the same collation, journal and durability,
// so that only the layers differ. Failures throw std::runtime_error.
class Connection {
public:
    explicit Connection(const std::string& file);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    void run(const char* sql);
    sqlite3* handle() const { return handle_; }

private:
    sqlite3* handle_ = nullptr;
};

// A prepared statement, used again and again.
class Statement {
public:
    Statement(const Connection& connection, const char* sql);
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    Statement& bind(int index, std::int64_t value);
    Statement& bind(int index, std::string_view text); // must live until run() or the last row
    bool step();  // true: a row stands
    void run();   // to the end, then ready again
    void reset();
    std::int64_t integer(int column) const { return sqlite3_column_int64(statement_, column); }
    std::string_view text(int column) const;
    bool is_null(int column) const {
        return sqlite3_column_type(statement_, column) == SQLITE_NULL;
    }

private:
    sqlite3* database_;
    sqlite3_stmt* statement_ = nullptr;
};

} // namespace bench::hand
