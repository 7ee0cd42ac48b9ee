// zf_group_sums and zf_groups: GROUP BY by bytes first, in one pass without sorting.
#include <memory>
#include <new>

#include "engines/sqlite/functions/families.h"
#include "engines/sqlite/functions/group_sums.h"
#include "tsql/emit/sqlite/runtime_functions.h"

namespace engines {
namespace {

// ---- the aggregate ----

KeyValue key_of(sqlite3_value* value) {
    KeyValue key;
    switch (sqlite3_value_type(value)) {
    case SQLITE_NULL: break;
    case SQLITE_INTEGER:
        key.kind = KeyValue::Kind::integer;
        key.integer = sqlite3_value_int64(value);
        break;
    case SQLITE_FLOAT:
        key.kind = KeyValue::Kind::real;
        key.real = sqlite3_value_double(value);
        break;
    case SQLITE_TEXT: {
        key.kind = KeyValue::Kind::text;
        const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
        key.text = {text, static_cast<std::size_t>(sqlite3_value_bytes(value))};
        break;
    }
    default: {
        key.kind = KeyValue::Kind::bytes;
        const auto* bytes = static_cast<const char*>(sqlite3_value_blob(value));
        key.text = {bytes, static_cast<std::size_t>(sqlite3_value_bytes(value))};
    }
    }
    return key;
}

// SQLite keeps a pointer for us between rows.
GroupSums** sums_of(sqlite3_context* context, bool create) {
    return static_cast<GroupSums**>(
        sqlite3_aggregate_context(context, create ? static_cast<int>(sizeof(GroupSums*)) : 0));
}

// zf_group_sums(keys, key…, value…)
void add_row(sqlite3_context* context, int count, sqlite3_value** values) {
    GroupSums** kept = sums_of(context, true);
    if (kept == nullptr) return sqlite3_result_error_nomem(context);
    const int keys = sqlite3_value_int(values[0]);
    if (*kept == nullptr)
        *kept = new GroupSums(static_cast<std::size_t>(keys),
                              static_cast<std::size_t>(count - 1 - keys));
    GroupSums& sums = **kept;
    sums.begin_row();
    for (int i = 1; i <= keys; ++i) sums.key(key_of(values[i]));
    sums.find_group();
    for (int i = keys + 1; i < count; ++i) {
        if (sqlite3_value_type(values[i]) == SQLITE_NULL) continue;
        const auto place = static_cast<std::size_t>(i - keys - 1);
        if (!sums.add(place, sqlite3_value_int64(values[i])))
            return sqlite3_result_error(context, "integer overflow", -1); // as sum says it
    }
}

void give_groups(sqlite3_context* context) {
    GroupSums** kept = sums_of(context, false);
    if (kept == nullptr || *kept == nullptr) return sqlite3_result_null(context);
    const std::unique_ptr<GroupSums> sums(std::exchange(*kept, nullptr));
    const std::string text = sums->written();
    sqlite3_result_blob64(context, text.data(), text.size(), SQLITE_TRANSIENT);
}

// ---- the table ----

struct Cursor : sqlite3_vtab_cursor {
    std::string written;
    GroupReader reader{std::string_view()};
    std::int64_t row = 0;
};

Cursor& cursor_of(sqlite3_vtab_cursor* cursor) {
    return *static_cast<Cursor*>(cursor);
}

int connect(sqlite3* connection, void*, int, const char* const*, sqlite3_vtab** table, char**) {
    std::string columns;
    for (int i = 1; i <= tsql::sqlite::most_group_columns; ++i)
        columns += "c" + std::to_string(i) + ",";
    const int code =
        sqlite3_declare_vtab(connection, ("CREATE TABLE t(" + columns + "written HIDDEN)").c_str());
    if (code != SQLITE_OK) return code;
    sqlite3_vtab_config(connection, SQLITE_VTAB_INNOCUOUS);
    *table = new (std::nothrow) sqlite3_vtab{};
    return *table == nullptr ? SQLITE_NOMEM : SQLITE_OK;
}

int disconnect(sqlite3_vtab* table) {
    delete table;
    return SQLITE_OK;
}

// The only way in is the argument. Groups are few beside the rows they come from.
int choose_plan(sqlite3_vtab*, sqlite3_index_info* info) {
    for (int i = 0; i < info->nConstraint; ++i) {
        const auto& constraint = info->aConstraint[i];
        if (constraint.iColumn != tsql::sqlite::most_group_columns ||
            constraint.op != SQLITE_INDEX_CONSTRAINT_EQ || !constraint.usable)
            continue;
        info->aConstraintUsage[i].argvIndex = 1;
        info->aConstraintUsage[i].omit = 1;
        info->estimatedCost = 100;
        info->estimatedRows = 100;
        return SQLITE_OK;
    }
    return SQLITE_CONSTRAINT;
}

int open_cursor(sqlite3_vtab*, sqlite3_vtab_cursor** cursor) {
    *cursor = new (std::nothrow) Cursor();
    return *cursor == nullptr ? SQLITE_NOMEM : SQLITE_OK;
}

int close_cursor(sqlite3_vtab_cursor* cursor) {
    delete &cursor_of(cursor);
    return SQLITE_OK;
}

int start(sqlite3_vtab_cursor* at, int, const char*, int count, sqlite3_value** values) {
    Cursor& cursor = cursor_of(at);
    cursor.written.clear();
    if (count == 1)
        if (const auto* bytes = static_cast<const char*>(sqlite3_value_blob(values[0])))
            cursor.written.assign(bytes, static_cast<std::size_t>(sqlite3_value_bytes(values[0])));
    cursor.reader = GroupReader(cursor.written);
    cursor.row = 0;
    return SQLITE_OK;
}

int next_group(sqlite3_vtab_cursor* cursor) {
    cursor_of(cursor).reader.next();
    ++cursor_of(cursor).row;
    return SQLITE_OK;
}

int at_end(sqlite3_vtab_cursor* cursor) {
    return cursor_of(cursor).reader.at_end() ? 1 : 0;
}

int give_column(sqlite3_vtab_cursor* cursor, sqlite3_context* context, int column) {
    const auto& columns = cursor_of(cursor).reader.columns();
    if (static_cast<std::size_t>(column) >= columns.size()) return SQLITE_OK; // NULL
    const KeyValue& value = columns[static_cast<std::size_t>(column)];
    switch (value.kind) {
    case KeyValue::Kind::null: break;
    case KeyValue::Kind::integer: sqlite3_result_int64(context, value.integer); break;
    case KeyValue::Kind::real: sqlite3_result_double(context, value.real); break;
    case KeyValue::Kind::text:
        sqlite3_result_text64(context, value.text.data(), value.text.size(), SQLITE_TRANSIENT,
                              SQLITE_UTF8);
        break;
    case KeyValue::Kind::bytes:
        sqlite3_result_blob64(context, value.text.data(), value.text.size(), SQLITE_TRANSIENT);
        break;
    }
    return SQLITE_OK;
}

int give_row_number(sqlite3_vtab_cursor* cursor, sqlite3_int64* row) {
    *row = cursor_of(cursor).row;
    return SQLITE_OK;
}

// No xCreate: the table is there by its name alone and is never made.
sqlite3_module groups_module() {
    sqlite3_module module{};
    module.xConnect = connect;
    module.xBestIndex = choose_plan;
    module.xDisconnect = disconnect;
    module.xOpen = open_cursor;
    module.xClose = close_cursor;
    module.xFilter = start;
    module.xNext = next_group;
    module.xEof = at_end;
    module.xColumn = give_column;
    module.xRowid = give_row_number;
    return module;
}

} // namespace

void register_groups(sqlite3* connection) {
    constexpr int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    static const sqlite3_module module = groups_module();
    sqlite3_create_function_v2(connection, "zf_group_sums", -1, flags, nullptr, nullptr, add_row,
                               give_groups, nullptr);
    sqlite3_create_module_v2(connection, "zf_groups", &module, nullptr, nullptr);
}

} // namespace engines
