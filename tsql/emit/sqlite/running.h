// What is gathered about a query while its rows are made ready to be ordered by the engine.
#pragma once

#include "tsql/binder/bound_query.h"
#include "tsql/emit/sqlite/fragment.h"
#include "tsql/plan/plan.h"

#include <string>
#include <utility>
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
    // Of a query that joins a table with windows to a list of steps: these two. Then `outside` says
    // whether what is looked at belongs to the query around that table.
    const RangeTable* table = nullptr;
    const RangeTable* steps = nullptr;
    bool outside = false;

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
    // Whether a value is a column of the text that holds decimals in their 16 bytes.
    bool is_wide(int number) const {
        const ShownValue& value = order.values[static_cast<std::size_t>(number)];
        return value.kind == ShownValue::Kind::Cell && value.place >= 0 &&
               cells[static_cast<std::size_t>(value.place)].form == Form::Wide;
    }
    // left = right ? then : otherwise; -1 when one of them could not be made.
    int choose(int left, int right, int then, int otherwise) {
        if (left < 0 || right < 0 || then < 0 || otherwise < 0) {
            return -1;
        }
        ShownValue choice;
        choice.kind = ShownValue::Kind::Choice;
        choice.branches.push_back({left, right, then});
        choice.otherwise = otherwise;
        return add(std::move(choice));
    }
};

// What a column of the table with windows stands for; anything else as it is.
const BoundPtr& behind(const BoundPtr& value, const RangeTable* table);

// The windows of an expression, those of its subqueries left out.
void collect_windows(const BoundPtr& value, std::vector<const BoundAggregate*>& out);

// How many of the first keys the partition of a window is, -1 when it is not just these.
int partition_keys(const BoundWindow& window, const std::vector<RunningKey>& keys);

} // namespace tsql::sqlite
