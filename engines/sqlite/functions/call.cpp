// Reads arguments, writes results, and turns errors of calculations into errors of SQLite.
#include "engines/sqlite/functions/call.h"

#include <limits>
#include <new>

#include "engines/sqlite/numbers/decimal.h"
#include "engines/sqlite/raise.h"

namespace engines {
namespace {

struct Registered {
    const FunctionEntry* entry;
    Runtime* runtime;
};

void run(sqlite3_context* context, int count, sqlite3_value** values) {
    const auto& registered = *static_cast<Registered*>(sqlite3_user_data(context));
    if (registered.entry->nature == Nature::pure) {
        for (int i = 0; i < count; ++i)
            if (sqlite3_value_type(values[i]) == SQLITE_NULL) return;
    }
    try {
        registered.entry->body(Call(context, count, values, *registered.runtime));
    } catch (const Failure& failure) {
        report(context, *registered.runtime, failure);
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(context);
    } catch (const std::exception& unexpected) {
        // Nothing may pass through the frames of SQLite.
        sqlite3_result_error(context, unexpected.what(), -1);
    }
}

std::string_view characters(const void* data, int size) {
    if (data == nullptr) return {"", 0};
    return {static_cast<const char*>(data), static_cast<std::size_t>(size)};
}

bool fits_64_bits(Int128 value) {
    return value >= std::numeric_limits<std::int64_t>::min() &&
           value <= std::numeric_limits<std::int64_t>::max();
}

} // namespace

Stored stored_bytes(std::string_view bytes, const tsql::Type& type) {
    if (type.is_exact()) {
        if (const auto value = from_wide(bytes)) return Stored::of(*value);
    }
    return Stored::of_bytes(bytes);
}

Stored read_stored(sqlite3_value* value, const tsql::Type& type) {
    switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER: return Stored::of(sqlite3_value_int64(value));
    case SQLITE_FLOAT: return Stored::of_real(sqlite3_value_double(value));
    case SQLITE_TEXT: {
        const void* data = sqlite3_value_text(value);
        return Stored::of_text(characters(data, sqlite3_value_bytes(value)));
    }
    case SQLITE_BLOB: {
        const void* data = sqlite3_value_blob(value);
        return stored_bytes(characters(data, sqlite3_value_bytes(value)), type);
    }
    default: return Stored::null();
    }
}

Stored read_column(sqlite3_stmt* statement, int column, const tsql::Type& type) {
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER: return Stored::of(sqlite3_column_int64(statement, column));
    case SQLITE_FLOAT: return Stored::of_real(sqlite3_column_double(statement, column));
    case SQLITE_TEXT: {
        const void* data = sqlite3_column_text(statement, column);
        return Stored::of_text(characters(data, sqlite3_column_bytes(statement, column)));
    }
    case SQLITE_BLOB: {
        const void* data = sqlite3_column_blob(statement, column);
        return stored_bytes(characters(data, sqlite3_column_bytes(statement, column)), type);
    }
    default: return Stored::null();
    }
}

void bind_stored(sqlite3_stmt* statement, int index, const Stored& value, const tsql::Type& type) {
    switch (value.form) {
    case Stored::Form::null: sqlite3_bind_null(statement, index); return;
    case Stored::Form::integer:
        if (is_wide(type) || !fits_64_bits(value.integer)) {
            const WideBytes bytes = to_wide(value.integer);
            sqlite3_bind_blob(statement, index, bytes.data(), 16, SQLITE_TRANSIENT);
        } else {
            sqlite3_bind_int64(statement, index, static_cast<std::int64_t>(value.integer));
        }
        return;
    case Stored::Form::real: sqlite3_bind_double(statement, index, value.real); return;
    case Stored::Form::text:
        sqlite3_bind_text64(statement, index, value.text.data(), value.text.size(),
                            SQLITE_TRANSIENT, SQLITE_UTF8);
        return;
    case Stored::Form::bytes:
        sqlite3_bind_blob64(statement, index, value.text.data(), value.text.size(),
                            SQLITE_TRANSIENT);
        return;
    }
}

std::string_view Call::text(int i) const {
    const void* data = sqlite3_value_text(values_[i]);
    return characters(data, sqlite3_value_bytes(values_[i]));
}

Int128 Call::exact(int i) const {
    if (!is_wide(i)) return sqlite3_value_int64(values_[i]);
    const void* data = sqlite3_value_blob(values_[i]);
    const auto value = from_wide(characters(data, sqlite3_value_bytes(values_[i])));
    if (!value) raise_error(8114, "Error converting data type varbinary to numeric.");
    return *value;
}

void Call::give_real(double value) const {
    sqlite3_result_double(context_, value);
}

void Call::give_text(std::string_view value) const {
    sqlite3_result_text64(context_, value.data() == nullptr ? "" : value.data(), value.size(),
                          SQLITE_TRANSIENT, SQLITE_UTF8);
}

void Call::give_bytes(std::string_view value) const {
    sqlite3_result_blob64(context_, value.data() == nullptr ? "" : value.data(), value.size(),
                          SQLITE_TRANSIENT);
}

void Call::give_wide(Int128 value) const {
    const WideBytes bytes = to_wide(value);
    sqlite3_result_blob(context_, bytes.data(), 16, SQLITE_TRANSIENT);
}

void Call::give_narrow(Int128 value) const {
    if (!fits_64_bits(value)) raise_overflow("numeric");
    give(static_cast<std::int64_t>(value));
}

void Call::give_stored(const Stored& value, const tsql::Type& type) const {
    switch (value.form) {
    case Stored::Form::null: give_null(); return;
    case Stored::Form::integer:
        engines::is_wide(type) ? give_wide(value.integer) : give_narrow(value.integer);
        return;
    case Stored::Form::real: give_real(value.real); return;
    case Stored::Form::text: give_text(value.text); return;
    case Stored::Form::bytes: give_bytes(value.text); return;
    }
}

void report(sqlite3_context* context, Runtime& runtime, const Failure& failure) {
    runtime.keep(failure.error());
    sqlite3_result_error(context, failure.error().text.c_str(), -1);
}

void register_functions(sqlite3* connection, std::span<const FunctionEntry> entries,
                        Runtime& runtime) {
    for (const FunctionEntry& entry : entries) {
        const int flags = SQLITE_UTF8 | SQLITE_INNOCUOUS |
                          (entry.nature == Nature::live ? 0 : SQLITE_DETERMINISTIC);
        sqlite3_create_function_v2(connection, entry.name, entry.count, flags,
                                   new Registered{&entry, &runtime}, run, nullptr, nullptr,
                                   [](void* data) { delete static_cast<Registered*>(data); });
    }
}

} // namespace engines
