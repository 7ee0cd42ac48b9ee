// Adds columns and constraints to a table, for CREATE TABLE and ALTER TABLE ADD alike.
#pragma once

#include "tsql/binder/binder.h"

namespace tsql {

class TableBuilder {
public:
    // `text` is what the syntax tree was parsed from: expressions are kept by cutting them out.
    // A `trusted` text was written by table_text: its rules are not tested again, because the
    // tables and functions they name may not be loaded yet.
    TableBuilder(Binder& binder, CatalogTable& table, std::string_view text, bool trusted = false);

    void add(const TableDefinition& definition);
    void add_column(const ColumnDefinition& definition);

private:
    void add_constraint(const Constraint& constraint, int own_column);
    void add_key(const Constraint& constraint, int own_column);
    void add_check(const Constraint& constraint);
    void add_foreign_key(const Constraint& constraint, int own_column);
    void add_default(const Constraint& constraint, int own_column);

    Binder& binder_;
    CatalogTable& table_;
    std::string_view text_;
    bool trusted_;
};

// The table as CREATE TABLE and CREATE INDEX statements.
std::string table_text(const CatalogTable& table);

// [name], its brackets doubled.
std::string bracketed(std::string_view name);

} // namespace tsql
