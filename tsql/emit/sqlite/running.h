// What is gathered about a query while its rows are made ready to be ordered by the engine.
#pragma once

#include "tsql/binder/bound_query.h"
#include "tsql/emit/sqlite/fragment.h"
#include "tsql/plan/plan.h"

#include <string>
#include <vector>

namespace tsql::sqlite {

// One key of the common order: a column and its direction.
struct RunningKey {
    BoundPtr column;
    bool descending = false;
};

// The columns of the text to be: the keys first, then what the shown values need. While it is
// gathered a running value goes by -1, -2 … in place of its column, since the columns before it are
// not counted yet.
struct RunningRows {
    std::vector<RunningKey> keys;
    std::vector<BoundPtr> values; // by column of the text
    std::vector<Fragment> cells;  // likewise
    int conditional = 0;          // inside branches that may not be reached
    RowOrder order;

    int add(ShownValue value) {
        order.values.push_back(std::move(value));
        return static_cast<int>(order.values.size()) - 1;
    }
    int add(ShownValue::Kind kind, int place) {
        ShownValue value;
        value.kind = kind;
        value.place = place;
        return add(std::move(value));
    }
};

// The windows of an expression, those of its subqueries left out.
void collect_windows(const BoundPtr& value, std::vector<const BoundAggregate*>& out);

// How many of the first keys the partition of a window is, -1 when it is not just these.
int partition_keys(const BoundWindow& window, const std::vector<RunningKey>& keys);

} // namespace tsql::sqlite
