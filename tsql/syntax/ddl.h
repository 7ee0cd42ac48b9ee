// Tables and indexes: CREATE, ALTER, DROP.
#pragma once

#include "tsql/syntax/statement.h"

namespace tsql {

enum class ReferentialAction : std::uint8_t { NoAction, Cascade, SetNull, SetDefault };

struct ForeignKey { // REFERENCES table (columns) ON DELETE … ON UPDATE …
    ObjectName table;
    std::vector<Name> columns; // empty means the key of that table
    ReferentialAction on_delete = ReferentialAction::NoAction;
    ReferentialAction on_update = ReferentialAction::NoAction;
};

struct IndexColumn {
    Name name;
    bool descending = false;
};

enum class ConstraintKind : std::uint8_t { PrimaryKey, Unique, Check, ForeignKey, Default };

// A constraint of a column or of the table. On a column, `columns` is empty: it means that column.
struct Constraint {
    ConstraintKind kind = ConstraintKind::Check;
    Name name; // empty when the server is to choose one
    std::vector<IndexColumn> columns;
    bool clustered = false;   // CLUSTERED was written
    ExpressionPtr expression; // of Check (a condition) and Default
    Name default_for;         // ALTER TABLE … ADD CONSTRAINT … DEFAULT x FOR column
    ForeignKey references;
    SourceRange at;
};

struct Identity { // IDENTITY(seed, increment)
    std::int64_t seed = 1;
    std::int64_t increment = 1;
};

struct ColumnDefinition {
    Name name;
    TypeName type;          // name without parts for a computed column
    ExpressionPtr computed; // name AS expression, else null
    bool persisted = false;
    std::optional<bool> nullable; // not set when neither NULL nor NOT NULL was written
    std::optional<Identity> identity;
    std::optional<Name> collation;
    bool rowguidcol = false;
    std::vector<Constraint> constraints;
    SourceRange at;
};

struct TableDefinition { // what stands between the parentheses
    std::vector<ColumnDefinition> columns;
    std::vector<Constraint> constraints;
};

struct CreateTable : Statement {
    static constexpr auto own_kind = StatementKind::CreateTable;
    CreateTable() : Statement(own_kind) {}
    ObjectName name;
    TableDefinition definition;
};

enum class AlterTableAction : std::uint8_t {
    Add,             // columns and constraints
    AlterColumn,     // the one column of `add.columns`
    DropColumn,      // names
    DropConstraint,  // names
    CheckConstraint, // WITH CHECK CHECK CONSTRAINT names, or ALL
    NoCheckConstraint,
    EnableTrigger, // names, or ALL
    DisableTrigger,
};

struct AlterTable : Statement {
    static constexpr auto own_kind = StatementKind::AlterTable;
    AlterTable() : Statement(own_kind) {}
    ObjectName name;
    AlterTableAction action = AlterTableAction::Add;
    TableDefinition add;
    std::vector<Name> names;
    bool all = false;       // CHECK CONSTRAINT ALL, DISABLE TRIGGER ALL
    bool if_exists = false; // DROP COLUMN IF EXISTS
};

struct CreateIndex : Statement {
    static constexpr auto own_kind = StatementKind::CreateIndex;
    CreateIndex() : Statement(own_kind) {}
    Name name;
    bool unique = false;
    bool clustered = false;
    ObjectName table;
    std::vector<IndexColumn> columns;
    std::vector<Name> include;
    ExpressionPtr where; // filtered index
};

struct DropIndex : Statement { // DROP INDEX name ON table, DROP INDEX table.name
    static constexpr auto own_kind = StatementKind::DropIndex;
    DropIndex() : Statement(own_kind) {}
    struct Target {
        Name index;
        ObjectName table;
    };
    std::vector<Target> targets;
    bool if_exists = false;
};

enum class ObjectKind : std::uint8_t { Table, View, Function, Procedure, Trigger };

struct Drop : Statement { // DROP TABLE IF EXISTS a, b
    static constexpr auto own_kind = StatementKind::Drop;
    Drop() : Statement(own_kind) {}
    ObjectKind object = ObjectKind::Table;
    std::vector<ObjectName> names;
    bool if_exists = false;
};

} // namespace tsql
