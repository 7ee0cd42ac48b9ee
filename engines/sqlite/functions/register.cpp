// Gives a connection the functions, aggregates and collations of emitted texts.
#include "engines/sqlite/collation/compare_text.h"
#include "engines/sqlite/functions/families.h"
#include "tsql/emit/sqlite/runtime_functions.h"

namespace engines {
namespace {

std::string_view view(int size, const void* data) {
    return {static_cast<const char*>(data), static_cast<std::size_t>(size)};
}

int by_collation(void*, int left_size, const void* left, int right_size, const void* right) {
    return compare_text(view(left_size, left), view(right_size, right));
}

int with_case(void*, int left_size, const void* left, int right_size, const void* right) {
    const int order = compare_text(view(left_size, left), view(right_size, right));
    if (order != 0) return order;
    return compare_text_exactly(view(left_size, left), view(right_size, right));
}

} // namespace

void register_collations(sqlite3* connection) {
    sqlite3_create_collation(connection, tsql::sqlite::database_collation, SQLITE_UTF8, nullptr,
                             by_collation);
    sqlite3_create_collation(connection, tsql::sqlite::case_sensitive_collation, SQLITE_UTF8,
                             nullptr, with_case);
}

void register_everything(sqlite3* connection, Runtime& runtime) {
    register_collations(connection);
    for (const auto& family :
         {conversion_functions(), integer_functions(), decimal_functions(), float_functions(),
          text_functions(), search_functions(), date_functions(), object_functions()})
        register_functions(connection, family, runtime);
    register_aggregates(connection, runtime);
    register_text_aggregates(connection, runtime);
    register_groups(connection);
}

} // namespace engines
