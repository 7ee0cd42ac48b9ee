// Declarations of tables and indexes.
#include "tsql/emit/common/quote.h"
#include "tsql/emit/sqlite/definition.h"
#include "tsql/emit/sqlite/emitter.h"
#include "tsql/emit/sqlite/runtime_functions.h"

namespace tsql::sqlite {

namespace {

std::string stored_index(const CatalogTable& table, const CatalogIndex& index) {
    return (table.temporary ? "temp." : "") + quoted_name(table.stored_name + "." + index.name);
}

std::string foreign_key(const CatalogTable& table, const CatalogForeignKey& key) {
    std::string own;
    std::string parent;
    for (std::size_t i = 0; i < key.columns.size(); ++i) {
        const auto ordinal = static_cast<std::size_t>(key.columns[i]);
        own += (i == 0 ? "" : ", ") + quoted_name(table.columns[ordinal].name);
        parent += (i == 0 ? "" : ", ") + quoted_name(key.parent_columns[i]);
    }
    return "CONSTRAINT " + quoted_name(key.name) + " FOREIGN KEY (" + own + ") REFERENCES " +
           quoted_name(key.parent) + " (" + parent + ") ON DELETE " +
           CatalogForeignKey::action_text(key.on_delete) + " ON UPDATE " +
           CatalogForeignKey::action_text(key.on_update);
}

// A condition over the columns of one row, their table's name left out.
std::string row_condition(const CatalogTable& table, const std::string& text, Binder& binder) {
    auto shared = std::make_shared<CatalogTable>(table);
    Scope scope;
    scope.tables.push_back(binder.range_of_table(shared, table.name, {}));
    const BoundPtr condition = binder.bind_text(text, scope, true);
    Emitter emitter(nullptr);
    std::string emitted = emitter.condition_text(condition);
    const std::string prefix = alias_of(*scope.tables.front()) + ".\"";
    for (std::size_t at = emitted.find(prefix); at != std::string::npos;
         at = emitted.find(prefix, at)) {
        emitted.erase(at, prefix.size() - 1);
    }
    return emitted;
}

// SQLite takes numbers between the parentheses of a type; "nvarchar(max)" is a name to it.
std::string declared_type(const Type& type) {
    return type.length == Type::max_length ? quoted_name(type.text()) : type.text();
}

} // namespace

std::string declared_column(const CatalogColumn& column) {
    std::string text = quoted_name(column.name) + " " + declared_type(column.type);
    if (column.type.is_text()) {
        const bool binary = column.collation.find("_BIN") != std::string::npos;
        const bool cased = column.collation.find("_CS_") != std::string::npos;
        text += std::string(" COLLATE ") + (binary  ? "BINARY"
                                            : cased ? case_sensitive_collation
                                                    : database_collation);
    }
    return text;
}

std::string create_table(const CatalogTable& table, Binder& binder, bool if_missing) {
    std::string text = std::string("CREATE ") + (table.temporary ? "TEMP " : "") + "TABLE " +
                       (if_missing ? "IF NOT EXISTS " : "") + quoted_name(table.stored_name) + " (";
    bool first = true;
    const auto part = [&](const std::string& what) {
        text += (first ? "" : ", ") + what;
        first = false;
    };
    for (const CatalogColumn& column : table.columns) {
        if (column.computed.empty()) {
            part(declared_column(column) + (column.nullable ? "" : " NOT NULL"));
        }
    }
    for (const CatalogCheck& check : table.checks) {
        part("CONSTRAINT " + quoted_name(check.name) + " CHECK (" +
             row_condition(table, check.text, binder) + ")");
    }
    for (const CatalogForeignKey& key : table.foreign_keys) {
        part(foreign_key(table, key));
    }
    for (const CatalogIndex& index : table.indexes) {
        // A table variable is made by one statement, so its keys stand inside.
        std::string columns;
        for (const int ordinal : index.columns) {
            columns += (columns.empty() ? "" : ", ") +
                       quoted_name(table.columns[static_cast<std::size_t>(ordinal)].name);
        }
        if (table.name.starts_with('@')) {
            part("UNIQUE (" + columns + ")");
        }
    }
    return text + ")";
}

std::vector<std::string> create_index(const CatalogTable& table, const CatalogIndex& index,
                                      Binder& binder) {
    std::string columns;
    std::string with_nulls;
    std::string any_null;
    for (std::size_t i = 0; i < index.columns.size(); ++i) {
        const CatalogColumn& column = table.columns[static_cast<std::size_t>(index.columns[i])];
        const std::string name = quoted_name(column.name);
        columns += (i == 0 ? "" : ", ") + name + (index.descending[i] ? " DESC" : "");
        with_nulls += i == 0 ? "" : ", ";
        if (column.nullable) {
            with_nulls += "coalesce(" + name + ",x'00')" +
                          (column.type.is_text() ? std::string(" COLLATE ") + database_collation
                                                 : std::string());
            any_null += (any_null.empty() ? "" : " OR ") + name + " IS NULL";
        } else {
            with_nulls += name;
        }
    }
    const std::string filter =
        index.filter.empty() ? "" : row_condition(table, index.filter, binder);
    std::vector<std::string> texts;
    const std::string on = " ON " + quoted_name(table.stored_name) + " (";
    texts.push_back(std::string("CREATE ") + (index.unique ? "UNIQUE " : "") + "INDEX " +
                    stored_index(table, index) + on + columns + ")" +
                    (filter.empty() ? "" : " WHERE " + filter));
    if (index.unique && !any_null.empty()) {
        CatalogIndex nulls = index;
        nulls.name += "~null";
        texts.push_back("CREATE UNIQUE INDEX " + stored_index(table, nulls) + on + with_nulls +
                        ") WHERE (" + any_null + ")" +
                        (filter.empty() ? "" : " AND (" + filter + ")"));
    }
    return texts;
}

std::vector<std::string> drop_index(const CatalogTable& table, const CatalogIndex& index) {
    CatalogIndex nulls = index;
    nulls.name += "~null";
    return {"DROP INDEX " + stored_index(table, index),
            "DROP INDEX IF EXISTS " + stored_index(table, nulls)};
}

std::string create_copy(const CatalogTable& table, bool inserted) {
    std::string text = "CREATE TEMP TABLE IF NOT EXISTS " +
                       quoted_name(copy_name(table, inserted)) + " (zf_rowid INTEGER";
    for (const CatalogColumn& column : table.columns) {
        if (column.computed.empty()) {
            text += ", " + declared_column(column);
        }
    }
    return text + ")";
}

std::vector<std::string> redeclare(const CatalogTable& table, Binder& binder) {
    return {"PRAGMA writable_schema=1",
            "UPDATE sqlite_schema SET sql=" + quoted_text(create_table(table, binder, false)) +
                " WHERE type='table' AND name=" + quoted_text(table.stored_name),
            "PRAGMA writable_schema=RESET",
            // Any definition makes the other connections read the declarations anew.
            "CREATE TABLE zf_redeclared(x)", "DROP TABLE zf_redeclared"};
}

} // namespace tsql::sqlite
