// Queries as written: SELECT, set operations, the tables of FROM, common table expressions.
#pragma once

#include "tsql/syntax/expression.h"

namespace tsql {

// ---- The whole query -------------------------------------------------------------------------

enum class QueryBodyKind : std::uint8_t { Select, SetOperation };

struct QueryBody : Node<QueryBodyKind> {
    using Node::Node;
};
using QueryBodyPtr = std::unique_ptr<QueryBody>;

struct CommonTable;

struct Query {
    std::vector<CommonTable> with; // only on the query of a statement
    QueryBodyPtr body;
    std::vector<OrderItem> order;
    SourceRange order_at;
    ExpressionPtr offset;             // OFFSET n ROWS, null when none
    ExpressionPtr fetch;              // FETCH NEXT n ROWS ONLY, null when none
    std::optional<int> max_recursion; // OPTION (MAXRECURSION n)
    bool force_order = false;         // OPTION (FORCE ORDER)
    SourceRange at;
};

struct CommonTable { // q (a, b) AS (SELECT …); recursive when its query names itself
    Name name;
    std::vector<Name> columns;
    std::unique_ptr<Query> query;
    SourceRange at;
};

// ---- The tables of FROM ----------------------------------------------------------------------

enum class TableSourceKind : std::uint8_t {
    NamedTable,
    DerivedTable,
    ValuesTable,
    FunctionTable,
    Join,
};

struct TableSource : Node<TableSourceKind> {
    using Node::Node;
};
using TableSourcePtr = std::unique_ptr<TableSource>;

// A table, view, common table expression, table variable (@t), temporary table (#t), `inserted`
// or `deleted`. Lock hints such as WITH (NOLOCK) are read and kept for the server only.
struct NamedTable : TableSource {
    static constexpr auto own_kind = TableSourceKind::NamedTable;
    NamedTable() : TableSource(own_kind) {}
    ObjectName name;
    Name alias; // empty when none
    std::vector<Name> hints;
};

struct DerivedTable : TableSource { // (SELECT …) q (a, b)
    static constexpr auto own_kind = TableSourceKind::DerivedTable;
    DerivedTable() : TableSource(own_kind) {}
    std::unique_ptr<Query> query;
    Name alias;
    std::vector<Name> columns; // empty when the query names them itself
};

using ValueRow = std::vector<ExpressionPtr>; // an element may be a DefaultMark in INSERT only

struct ValuesTable : TableSource { // (VALUES (1,'x'),(2,'z')) t(a,b)
    static constexpr auto own_kind = TableSourceKind::ValuesTable;
    ValuesTable() : TableSource(own_kind) {}
    std::vector<ValueRow> rows;
    Name alias;
    std::vector<Name> columns;
};

struct FunctionTable : TableSource { // dbo.FT(1) t
    static constexpr auto own_kind = TableSourceKind::FunctionTable;
    FunctionTable() : TableSource(own_kind) {}
    ObjectName name;
    std::vector<ExpressionPtr> arguments;
    Name alias;
    std::vector<Name> columns;
};

enum class JoinKind : std::uint8_t { Inner, Left, Right, Full, Cross, CrossApply, OuterApply };

struct Join : TableSource {
    static constexpr auto own_kind = TableSourceKind::Join;
    Join() : TableSource(own_kind) {}
    JoinKind type = JoinKind::Inner;
    TableSourcePtr left;
    TableSourcePtr right;
    ExpressionPtr on; // null for Cross and the two Apply
};

// ---- Query bodies ----------------------------------------------------------------------------

struct Top { // TOP n, TOP (expression) [PERCENT] [WITH TIES]
    ExpressionPtr count;
    bool percent = false;
    bool with_ties = false;
    SourceRange at;
};

enum class AssignOperator : std::uint8_t {
    Assign, // =
    Add,    // +=
    Subtract,
    Multiply,
    Divide,
    Modulo,
    BitAnd,
    BitOr,
    BitXor,
};

enum class SelectItemKind : std::uint8_t { Expression, Star, Assignment };

// One element of the select list: an expression with or without alias (all forms of an alias look
// alike here), `*` or `T.*`, or the assignment `@v = expression`.
struct SelectItem {
    SelectItemKind kind = SelectItemKind::Expression;
    ExpressionPtr expression; // null for Star
    Name alias;               // empty when none
    ObjectName star_of;       // T of `T.*`; no parts for a plain `*`
    std::string variable;     // of Assignment, with its mark
    AssignOperator assign = AssignOperator::Assign;
    SourceRange at;
};

enum class GroupingKind : std::uint8_t { Plain, Rollup, Cube };

struct Select : QueryBody {
    static constexpr auto own_kind = QueryBodyKind::Select;
    Select() : QueryBody(own_kind) {}
    bool distinct = false;
    std::optional<Top> top;
    std::vector<SelectItem> items;
    std::optional<ObjectName> into;
    std::vector<TableSourcePtr> from; // comma list; empty when there is no FROM
    ExpressionPtr where;
    GroupingKind grouping = GroupingKind::Plain;
    std::vector<ExpressionPtr> group_by;
    ExpressionPtr having;
};

enum class SetOperator : std::uint8_t { Union, UnionAll, Except, Intersect };

// Branches joined by one and the same operator, read from the left: a UNION ALL b UNION ALL c is
// one node of three branches, a UNION ALL b UNION c is two nodes.
struct SetOperation : QueryBody {
    static constexpr auto own_kind = QueryBodyKind::SetOperation;
    SetOperation() : QueryBody(own_kind) {}
    SetOperator op = SetOperator::Union;
    std::vector<QueryBodyPtr> branches; // at least two
};

} // namespace tsql
