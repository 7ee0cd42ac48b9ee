// Statements that change rows, understood.
#pragma once

#include "tsql/binder/bound_query.h"

namespace tsql {

struct BoundAssign { // SELECT @a = x, … FROM …; the query's items go into the slots in order
    std::unique_ptr<BoundQuery> query;
    std::vector<int> slots;
};

// What INSERT, UPDATE and DELETE share.
struct BoundChange {
    std::shared_ptr<const CatalogTable> table;
    std::shared_ptr<RangeTable> target; // the rows that change
    std::shared_ptr<RangeTable> view;   // through which they are seen, when there is one
    std::vector<std::shared_ptr<BoundCommonTable>> with;
    std::optional<BoundTop> top;
    // OUTPUT: a query over the copies of old and new rows, and where its rows go.
    std::unique_ptr<BoundQuery> output;
    std::shared_ptr<const CatalogTable> output_into;
    std::vector<int> output_columns;
    std::vector<std::string> triggers; // that run after it, in order
    bool instead_of = false;           // the triggers run in its place
};

struct BoundInsert : BoundChange {
    std::vector<int> columns; // ordinals in the order of the values
    std::vector<std::vector<BoundPtr>> rows;
    std::unique_ptr<BoundQuery> query; // its items already converted to the columns
    // Values of the columns not given by the query or rows: defaults, identity.
    std::vector<std::pair<int, BoundPtr>> defaults;
    bool executes = false;
};

struct BoundSet {
    int column = 0;
    BoundPtr value; // already of the column's type
};

struct BoundUpdate : BoundChange {
    std::vector<BoundSet> set;
    std::vector<BoundSourcePtr> from;
    bool target_in_from = false; // then `from` holds the target and rows are matched by their id
    BoundPtr where;
};

struct BoundDelete : BoundChange {
    std::vector<BoundSourcePtr> from;
    bool target_in_from = false;
    BoundPtr where;
};

} // namespace tsql
