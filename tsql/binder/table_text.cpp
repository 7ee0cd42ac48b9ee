// Writes a table of the catalogue back as T-SQL; this is the form in which it is kept.
#include "tsql/binder/table_builder.h"

namespace tsql {

namespace {

std::string column_list(const CatalogTable& table, const CatalogIndex& index) {
    std::string text;
    for (std::size_t i = 0; i < index.columns.size(); ++i) {
        text += i == 0 ? "" : ", ";
        text += bracketed(table.columns[static_cast<std::size_t>(index.columns[i])].name);
        text += index.descending[i] ? " DESC" : "";
    }
    return text;
}

std::string column_text(const CatalogColumn& column) {
    std::string text = bracketed(column.name) + ' ';
    if (!column.computed.empty()) {
        return text + "AS (" + column.computed + ")";
    }
    text += column.type.text();
    if (!column.collation.empty()) {
        text += " COLLATE " + column.collation;
    }
    if (column.identity) {
        text += " IDENTITY(" + std::to_string(column.identity->seed) + "," +
                std::to_string(column.identity->increment) + ")";
    }
    text += column.nullable ? " NULL" : " NOT NULL";
    if (!column.default_text.empty()) {
        text += " CONSTRAINT " + bracketed(column.default_name) + " DEFAULT (" +
                column.default_text + ")";
    }
    return text;
}

std::string foreign_key_text(const CatalogTable& table, const CatalogForeignKey& key) {
    std::string own;
    std::string parent;
    for (std::size_t i = 0; i < key.columns.size(); ++i) {
        own += i == 0 ? "" : ", ";
        own += bracketed(table.columns[static_cast<std::size_t>(key.columns[i])].name);
        parent += (i == 0 ? "" : ", ") + bracketed(key.parent_columns[i]);
    }
    return "CONSTRAINT " + bracketed(key.name) + " FOREIGN KEY (" + own + ") REFERENCES " +
           bracketed(key.parent) + " (" + parent + ") ON DELETE " +
           CatalogForeignKey::action_text(key.on_delete) + " ON UPDATE " +
           CatalogForeignKey::action_text(key.on_update);
}

} // namespace

std::string bracketed(std::string_view name) {
    std::string text = "[";
    for (const char c : name) {
        text += c;
        if (c == ']') {
            text += c;
        }
    }
    return text + ']';
}

std::string table_text(const CatalogTable& table) {
    std::string text = "CREATE TABLE " + bracketed(table.name) + " (";
    std::string indexes;
    bool first = true;
    const auto part = [&](const std::string& what) {
        text += (first ? "" : ", ") + what;
        first = false;
    };
    for (const CatalogColumn& column : table.columns) {
        part(column_text(column));
    }
    for (const CatalogIndex& index : table.indexes) {
        const std::string columns = "(" + column_list(table, index) + ")";
        if (index.constraint) {
            part("CONSTRAINT " + bracketed(index.name) +
                 (index.primary ? " PRIMARY KEY " : " UNIQUE ") + columns);
        } else {
            indexes += std::string("; CREATE ") + (index.unique ? "UNIQUE " : "") + "INDEX " +
                       bracketed(index.name) + " ON " + bracketed(table.name) + " " + columns +
                       (index.filter.empty() ? "" : " WHERE " + index.filter);
        }
    }
    for (const CatalogForeignKey& key : table.foreign_keys) {
        part(foreign_key_text(table, key));
    }
    for (const CatalogCheck& check : table.checks) {
        part("CONSTRAINT " + bracketed(check.name) + " CHECK (" + check.text + ")");
    }
    return text + ")" + indexes;
}

} // namespace tsql
