// Maps result codes and the words behind constraint failures.
#include "engines/sqlite/connection/sqlite_error.h"
#include "tsql/binder/scope.h"

#include <cerrno>
#include <vector>

namespace engines {
namespace {

std::string_view verb_text(StatementVerb verb) {
    switch (verb) {
    case StatementVerb::insert: return "INSERT";
    case StatementVerb::update: return "UPDATE";
    case StatementVerb::remove: return "DELETE";
    case StatementVerb::other: break;
    }
    return "statement";
}

Error make(int number, ErrorCategory category, std::string text) {
    Error error;
    error.number = number;
    error.category = category;
    error.text = std::move(text);
    return error;
}

Error constraint(int number, std::string text) {
    return make(number, ErrorCategory::constraint, std::move(text));
}

// What stands behind the last colon of SQLite's message.
std::string detail_of(const SqliteFailure& failure) {
    const std::string message = failure.what();
    const auto colon = message.find(": ");
    return colon == std::string::npos ? "" : message.substr(colon + 2);
}

struct Place {
    std::string table;
    std::vector<std::string> columns;
};

// "T.A, T.B" as table and columns.
Place place_of(const std::string& detail) {
    Place place;
    for (std::size_t start = 0; start < detail.size();) {
        const std::size_t end = std::min(detail.find(", ", start), detail.size());
        const std::string part = detail.substr(start, end - start);
        const auto point = part.rfind('.');
        place.table = part.substr(0, point);
        if (point != std::string::npos) place.columns.push_back(part.substr(point + 1));
        start = end + 2;
    }
    return place;
}

bool covers(const tsql::CatalogTable& table, const tsql::CatalogIndex& index,
            const std::vector<std::string>& columns) {
    if (!index.unique && !index.primary) return false;
    if (index.columns.size() != columns.size()) return false;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const auto ordinal = static_cast<std::size_t>(index.columns[i]);
        if (!tsql::same_name(table.columns[ordinal].name, columns[i])) return false;
    }
    return true;
}

Error duplicate_in(const tsql::CatalogTable& table, const tsql::CatalogIndex& index) {
    if (!index.constraint && !index.primary)
        return constraint(2601, "Cannot insert duplicate key row in object '" + table.name +
                                    "' with unique index '" + index.name + "'.");
    return constraint(2627, std::string("Violation of ") + (index.primary ? "PRIMARY" : "UNIQUE") +
                                " KEY constraint '" + index.name +
                                "'. Cannot insert duplicate key in object '" + table.name + "'.");
}

// A name of an index as SQLite gives it: "index 'T.IX_U'", with "~null" for the index that makes
// NULLs count as equal.
std::string index_name(const std::string& detail) {
    const auto open = detail.find('\'');
    const auto close = detail.rfind('\'');
    if (!detail.starts_with("index ") || open == close) return "";
    std::string name = detail.substr(open + 1, close - open - 1);
    if (name.ends_with("~null")) name.resize(name.size() - 5);
    return name;
}

std::optional<Error> duplicate_in_index(const std::string& name, const tsql::Catalog& catalog) {
    for (const auto& [key, object] : catalog.objects()) {
        const auto* table = dynamic_cast<const tsql::CatalogTable*>(object.get());
        if (table == nullptr) continue;
        for (const auto& index : table->indexes) {
            if (tsql::same_name(table->stored_name + "." + index.name, name))
                return duplicate_in(*table, index);
        }
    }
    return std::nullopt;
}

Error duplicate(const std::string& detail, const tsql::Catalog* catalog) {
    if (catalog != nullptr) {
        const std::string name = index_name(detail);
        if (!name.empty()) {
            if (auto error = duplicate_in_index(name, *catalog)) return *error;
        }
        const Place place = place_of(detail);
        if (const auto table = catalog->find_table(place.table)) {
            for (const auto& index : table->indexes) {
                if (covers(*table, index, place.columns)) return duplicate_in(*table, index);
            }
        }
    }
    return constraint(2627, "Violation of a unique key: " + detail + ".");
}

Error constraint_error(const SqliteFailure& failure, const tsql::Catalog* catalog,
                       StatementVerb verb) {
    const std::string detail = detail_of(failure);
    const std::string action(verb_text(verb));
    switch (failure.code) {
    case SQLITE_CONSTRAINT_NOTNULL: {
        const Place place = place_of(detail);
        const std::string column = place.columns.empty() ? "" : place.columns.front();
        return constraint(515, "Cannot insert the value NULL into column '" + column +
                                   "', table '" + place.table + "'; column does not allow nulls. " +
                                   action + " fails.");
    }
    case SQLITE_CONSTRAINT_CHECK:
        return constraint(547, "The " + action +
                                   " statement conflicted with the CHECK constraint \"" + detail +
                                   "\".");
    case SQLITE_CONSTRAINT_FOREIGNKEY:
        return constraint(547, "The " + action + " statement conflicted with the " +
                                   (verb == StatementVerb::remove ? "REFERENCE" : "FOREIGN KEY") +
                                   " constraint.");
    default: return duplicate(detail, catalog);
    }
}

// What SQLite says of expressions beyond its own depth.
bool too_deep(std::string_view text) {
    return text == "parser stack overflow" || text.starts_with("Expression tree is too large");
}

bool no_room(int system_error) {
    return system_error == ENOSPC || system_error == EDQUOT || system_error == EFBIG;
}

} // namespace

Error explain(const SqliteFailure& failure, const tsql::Catalog* catalog, StatementVerb verb) {
    Error error;
    switch (failure.code & 0xFF) {
    case SQLITE_CONSTRAINT: error = constraint_error(failure, catalog, verb); break;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        error = make(1222, ErrorCategory::busy, "Lock request time out period exceeded.");
        break;
    case SQLITE_INTERRUPT:
        error = make(3617, ErrorCategory::interrupted, "The query was cancelled.");
        break;
    case SQLITE_READONLY:
        error = make(3906, ErrorCategory::read_only,
                     "Failed to update database because the database is read-only.");
        break;
    case SQLITE_FULL:
        error = make(1105, ErrorCategory::disk_full,
                     "Could not allocate space in the database because the disk is full.");
        break;
    case SQLITE_CORRUPT:
        error = make(824, ErrorCategory::damaged,
                     "The database file is damaged: " + std::string(failure.what()) + ".");
        break;
    case SQLITE_NOTADB:
        error = make(824, ErrorCategory::foreign_file, "The file is not a set of books.");
        break;
    case SQLITE_IOERR:
        error = no_room(failure.system_error)
                    ? make(1105, ErrorCategory::disk_full,
                           "Could not allocate space in the database because the disk is full.")
                    : make(823, ErrorCategory::io,
                           "The operating system returned error " +
                               std::to_string(failure.system_error) + " for the database file.");
        break;
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
        error = make(5120, ErrorCategory::access, "Unable to open the database file.");
        break;
    case SQLITE_NOMEM:
        error = make(701, ErrorCategory::io, "There is insufficient system memory.");
        break;
    case SQLITE_TOOBIG:
        error = make(8152, ErrorCategory::conversion, "String or binary data would be truncated.");
        break;
    default:
        if (std::string_view(failure.what()) == "integer overflow")
            error = make(8115, ErrorCategory::arithmetic,
                         "Arithmetic overflow error converting expression to data type bigint.");
        else
            error = too_deep(failure.what())
                        ? make(191, ErrorCategory::syntax,
                               "Some part of your SQL statement is nested too deeply. Rewrite the "
                               "query or break it up into smaller queries.")
                        : make(8624, ErrorCategory::internal, failure.what());
    }
    error.engine_code = failure.code;
    return error;
}

} // namespace engines
