// Queries that are understood: tables of FROM with their columns, select lists, set operations.
#pragma once

#include "tsql/binder/bound.h"

namespace tsql {

struct BoundCommonTable;

struct RangeColumn {
    std::string name;
    Type type;
    bool nullable = true;
    Collation collation = Collation::Database;
    bool used = false; // some expression reads it
    BoundPtr computed; // of a computed column: its expression over the same table
};

enum class RangeKind : std::uint8_t {
    Table,  // stored table, temporary table, copy of old or new rows
    Query,  // derived table or view
    Inline, // its columns stand for expressions of `query` itself: a view that is changed, APPLY
    Values,
    Common, // common table expression
};

// One table of a FROM clause under the name it goes by there.
struct RangeTable {
    RangeKind kind = RangeKind::Table;
    int id = 0; // unique in the statement
    std::string alias;
    std::vector<RangeColumn> columns;
    std::shared_ptr<const CatalogTable> table;      // of Table
    std::string stored_name;                        // of Table: its name in the engine
    bool temporary = false;                         // of Table: lives with the connection
    std::shared_ptr<BoundQuery> query;              // of Query and Inline
    std::vector<std::vector<BoundPtr>> rows;        // of Values
    std::shared_ptr<const BoundCommonTable> common; // of Common
    SourceRange at;
};

enum class SourceKind : std::uint8_t { Table, Join };

// FROM as a tree of joins whose leaves are range tables.
struct BoundSource {
    SourceKind kind = SourceKind::Table;
    std::shared_ptr<RangeTable> table;
    JoinKind join = JoinKind::Inner;
    std::unique_ptr<BoundSource> left;
    std::unique_ptr<BoundSource> right;
    BoundPtr on; // null when there is no condition
};
using BoundSourcePtr = std::unique_ptr<BoundSource>;

struct BoundItem {
    BoundPtr expression;
    std::string name; // "" when the column has no name
};

struct BoundTop {
    BoundPtr count;
    bool percent = false;
    bool with_ties = false;
};

enum class BoundBodyKind : std::uint8_t { Select, SetOperation };

struct BoundBody {
    explicit BoundBody(BoundBodyKind its_kind) : kind(its_kind) {}
    virtual ~BoundBody() = default;
    const BoundBodyKind kind;
};

struct BoundSelect : BoundBody {
    static constexpr auto own_kind = BoundBodyKind::Select;
    BoundSelect() : BoundBody(own_kind) {}
    bool distinct = false;
    std::optional<BoundTop> top;
    std::vector<BoundItem> items;
    std::vector<BoundSourcePtr> from;
    BoundPtr where;
    bool grouped = false; // GROUP BY, HAVING or an aggregate
    std::vector<BoundPtr> group_by;
    // Which of group_by each grouping uses; one full set unless ROLLUP or CUBE was written.
    std::vector<std::vector<bool>> grouping_sets;
    BoundPtr having;
};

struct BoundSetOperation : BoundBody {
    static constexpr auto own_kind = BoundBodyKind::SetOperation;
    BoundSetOperation() : BoundBody(own_kind) {}
    SetOperator op = SetOperator::Union;
    std::vector<std::unique_ptr<BoundBody>> branches;
};

// The columns a query gives; of a set operation with the types all branches were brought to.
struct BoundQuery {
    std::vector<std::shared_ptr<BoundCommonTable>> with;
    std::unique_ptr<BoundBody> body;
    std::vector<RangeColumn> columns;
    std::vector<BoundOrder> order;
    BoundPtr offset;
    BoundPtr fetch;
    bool correlated = false;
    bool force_order = false; // tables are joined in the order they are written
};

// A call in FROM of a function that fills a table: the copy its rows are read from.
struct BoundFill {
    std::string function;
    std::vector<BoundPtr> arguments;
    std::shared_ptr<const CatalogTable> table; // the copy
    std::string source;                        // stored name of the function's own variable
};

struct BoundCommonTable {
    int id = 0;
    std::string name;
    std::vector<RangeColumn> columns;
    std::shared_ptr<BoundQuery> query;
    bool recursive = false;
    int max_recursion = 100;
};

} // namespace tsql
