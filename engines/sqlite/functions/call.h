// One call of an SQL function: its arguments as the calculations want them, and its result.
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <span>
#include <string_view>

#include "engines/sqlite/functions/runtime.h"

namespace engines {

// The value of an argument or column; the type tells decimals in their 16 bytes from other bytes.
Stored read_stored(sqlite3_value* value, const tsql::Type& type);
Stored read_column(sqlite3_stmt* statement, int column, const tsql::Type& type);
// Bytes under a type of exact numbers are a decimal in its 16 bytes.
Stored stored_bytes(std::string_view bytes, const tsql::Type& type);
// Binds a value of the type to parameter index, from 1; texts are copied.
void bind_stored(sqlite3_stmt* statement, int index, const Stored& value, const tsql::Type& type);

class Call {
public:
    Call(sqlite3_context* context, int count, sqlite3_value** values, Runtime& runtime)
        : context_(context), count_(count), values_(values), runtime_(runtime) {}

    int count() const { return count_; }
    Runtime& runtime() const { return runtime_; }

    bool is_null(int i) const { return sqlite3_value_type(values_[i]) == SQLITE_NULL; }
    bool is_wide(int i) const { return sqlite3_value_type(values_[i]) == SQLITE_BLOB; }
    std::int64_t integer(int i) const { return sqlite3_value_int64(values_[i]); }
    int number(int i) const { return sqlite3_value_int(values_[i]); }
    double real(int i) const { return sqlite3_value_double(values_[i]); }
    std::string_view text(int i) const;
    // A decimal or integer in either form.
    Int128 exact(int i) const;
    tsql::Type type(int i) const { return tsql::Type::unpack(integer(i)); }
    Stored stored(int i, const tsql::Type& type) const { return read_stored(values_[i], type); }
    sqlite3_value* raw(int i) const { return values_[i]; }
    std::span<sqlite3_value* const> all() const {
        return {values_, static_cast<std::size_t>(count_)};
    }

    void give(std::int64_t value) const { sqlite3_result_int64(context_, value); }
    void give_real(double value) const;
    void give_text(std::string_view value) const;
    void give_bytes(std::string_view value) const;
    void give_null() const { sqlite3_result_null(context_); }
    void give_wide(Int128 value) const;
    // Error 8115 beyond 64 bits.
    void give_narrow(Int128 value) const;
    // In the form of the argument.
    void give_like(int i, Int128 value) const {
        is_wide(i) ? give_wide(value) : give_narrow(value);
    }
    void give_stored(const Stored& value, const tsql::Type& type) const;

private:
    sqlite3_context* context_;
    int count_;
    sqlite3_value** values_;
    Runtime& runtime_;
};

// How a function treats its arguments and may be used by SQLite.
enum class Nature : std::uint8_t {
    pure,           // the same result for the same arguments; NULL for any NULL
    pure_with_null, // the same result for the same arguments; looks at NULLs itself
    live            // depends on the session; looks at NULLs itself
};

struct FunctionEntry {
    const char* name;
    int count; // of arguments, -1 for any number
    Nature nature;
    void (*body)(const Call&);
};

// Registers the functions of one table. The runtime must outlive the connection.
void register_functions(sqlite3* connection, std::span<const FunctionEntry> entries,
                        Runtime& runtime);

// Reports an error of a calculation to SQLite and keeps it for the session.
void report(sqlite3_context* context, Runtime& runtime, const Failure& failure);

} // namespace engines
