// Statements that read or write rows.
#pragma once

#include "tsql/syntax/statement.h"

namespace tsql {

// SELECT as a statement: rows for the client, a table made by INTO, or variables assigned.
struct QueryStatement : Statement {
    static constexpr auto own_kind = StatementKind::Query;
    QueryStatement() : Statement(own_kind) {}
    Query query;
};

// OUTPUT inserted.ID, deleted.* [INTO target [(columns)]]
struct OutputClause {
    std::vector<SelectItem> items; // columns qualified by inserted or deleted
    std::optional<ObjectName> into;
    std::vector<Name> into_columns;
    SourceRange at;
};

enum class InsertSource : std::uint8_t { Values, Query, Execute, DefaultValues };

struct Insert : Statement {
    static constexpr auto own_kind = StatementKind::Insert;
    Insert() : Statement(own_kind) {}
    std::vector<CommonTable> with;
    std::optional<Top> top;
    ObjectName target;
    std::vector<Name> columns; // empty when not listed
    std::optional<OutputClause> output;
    InsertSource source = InsertSource::Values;
    std::vector<ValueRow> rows;   // of Values
    std::unique_ptr<Query> query; // of Query
    StatementPtr execute;         // of Execute: Execute or ExecuteText
};

// One element of SET: column = value, column += value, @v = value, @v = column = value.
struct Assignment {
    std::string variable; // empty when only a column is set
    ObjectName column;    // may be qualified by the target or its alias; no parts when only @v
    AssignOperator op = AssignOperator::Assign;
    ExpressionPtr value; // may be a DefaultMark
    SourceRange at;
};

// The target is a table or an alias that FROM gives; FROM may also not mention the target at all.
struct Update : Statement {
    static constexpr auto own_kind = StatementKind::Update;
    Update() : Statement(own_kind) {}
    std::vector<CommonTable> with;
    std::optional<Top> top;
    ObjectName target;
    std::vector<Assignment> set;
    std::optional<OutputClause> output;
    std::vector<TableSourcePtr> from;
    ExpressionPtr where;
};

struct Delete : Statement {
    static constexpr auto own_kind = StatementKind::Delete;
    Delete() : Statement(own_kind) {}
    std::vector<CommonTable> with;
    std::optional<Top> top;
    ObjectName target;
    std::optional<OutputClause> output;
    std::vector<TableSourcePtr> from; // the second FROM
    ExpressionPtr where;
};

struct Truncate : Statement {
    static constexpr auto own_kind = StatementKind::Truncate;
    Truncate() : Statement(own_kind) {}
    ObjectName target;
};

} // namespace tsql
