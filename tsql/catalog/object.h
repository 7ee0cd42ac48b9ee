// The objects of a database as the binder needs them: tables, views, functions, procedures,
// triggers.
#pragma once

#include "tsql/syntax/statement.h"
#include "tsql/types/type.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tsql {

enum class CatalogKind : std::uint8_t { Table, View, Function, Procedure, Trigger };

// An object is immutable and shared; a change makes a new one. `definition` is the T-SQL text from
// which the object can be made again: what CREATE said, or for a table its present state as
// CREATE TABLE and CREATE INDEX statements.
struct CatalogObject {
    CatalogObject(CatalogKind kind_of, std::string its_name, std::string text)
        : kind(kind_of), name(std::move(its_name)), definition(std::move(text)) {}
    virtual ~CatalogObject() = default;

    const CatalogKind kind;
    const std::string name; // as declared; compared without case
    std::string definition;
};

struct IdentityColumn {
    std::int64_t seed = 1;
    std::int64_t increment = 1;
};

// A column. Texts of defaults and computed columns are T-SQL expressions.
struct CatalogColumn {
    std::string name;
    Type type;
    bool nullable = true;
    std::optional<IdentityColumn> identity;
    std::string default_text; // empty when there is none
    std::string default_name; // of the default constraint
    std::string computed;     // not stored: worked out wherever the column is read
    std::string collation;    // empty means the database's
};

// A primary key, a unique constraint or an index. Columns are ordinals of the table. In the
// engine the index is called "<table>.<name>"; for a unique one with nullable columns a second
// index "<table>.<name>~null" sees to it that NULLs count as equal.
struct CatalogIndex {
    std::string name;
    std::vector<int> columns;
    std::vector<bool> descending;
    bool primary = false;
    bool constraint = false; // PRIMARY KEY or UNIQUE: error 2627, else 2601
    bool unique = false;
    std::string filter;      // T-SQL condition, empty when none
};

struct CatalogForeignKey {
    // "CASCADE" for an action, as both kinds of SQL write it.
    static const char* action_text(int action);

    std::string name;
    std::vector<int> columns;
    std::string parent;
    std::vector<std::string> parent_columns;
    int on_delete = 0; // 0 no action, 1 cascade, 2 set null, 3 set default
    int on_update = 0;
};

struct CatalogCheck {
    std::string name;
    std::string text; // T-SQL condition
};

// A table; also a temporary table (#t) and a table variable (@t). `stored_name` is the table's
// name in the engine, ready to be quoted; temporary ones live in schema `temp`.
struct CatalogTable : CatalogObject {
    CatalogTable(std::string its_name, std::string text)
        : CatalogObject(CatalogKind::Table, std::move(its_name), std::move(text)) {}

    std::vector<CatalogColumn> columns;
    std::vector<CatalogIndex> indexes;
    std::vector<CatalogForeignKey> foreign_keys;
    std::vector<CatalogCheck> checks;
    bool temporary = false;
    std::string stored_name;

    // Ordinal of a column by its name without regard to case, -1 when there is none.
    int find_column(std::string_view column) const;
    int identity_column() const; // ordinal, -1 when there is none
};

// Eight digits that tell texts apart, for names in which a text stands.
std::string mark_of(std::string_view text);

// Name of the copy that holds a table's old or new rows while its triggers run.
std::string copy_name(const CatalogTable& table, bool inserted);

// A view, function, procedure or trigger: a text that is parsed when first needed. Using one
// object from two threads at a time is the caller's to prevent.
struct CatalogModule : CatalogObject {
    using CatalogObject::CatalogObject;

    // The CREATE statement. Literals in it are numbered from 0.
    const Statement& syntax() const;
    // The whole tree, for those who outlive the object.
    std::shared_ptr<const Batch> tree() const;

private:
    mutable std::shared_ptr<const Batch> parsed_;
};

struct CatalogTrigger : CatalogModule {
    CatalogTrigger(std::string its_name, std::string text)
        : CatalogModule(CatalogKind::Trigger, std::move(its_name), std::move(text)) {}

    std::string table;
    bool instead_of = false;
    bool on_insert = false;
    bool on_update = false;
    bool on_delete = false;
    bool disabled = false;
};

} // namespace tsql
