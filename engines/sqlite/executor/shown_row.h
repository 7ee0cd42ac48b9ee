// The shown columns of ordered rows: cells, constants and choices between them.
#pragma once

#include <vector>

#include "engines/sqlite/executor/ordered_rows.h"
#include "engines/sqlite/functions/runtime.h"

namespace engines {

// Makes the shown columns of one row after the other. Everything handed over outlives it.
class ShownRow {
public:
    // constants: the values of order.constants, in that order.
    ShownRow(const tsql::RowOrder& order, const OrderedRows& rows,
             const std::vector<OwnedValue>& constants);

    // The step that is being taken.
    void take(std::int64_t step) { step_ = step; }
    // Whether the row is shown at this step.
    bool is_wanted(std::size_t row) const;
    // The value of a shown column at a row, read as the type says. Error 8115 when too large.
    Stored value(std::size_t row, std::size_t column, const tsql::Type& type) const;

private:
    const tsql::ShownValue& node(int number) const {
        return order_.values[static_cast<std::size_t>(number)];
    }
    RowCell evaluate(std::size_t row, int number) const;

    const tsql::RowOrder& order_;
    const OrderedRows& rows_;
    std::vector<RowCell> constants_;
    std::int64_t step_ = 0;
};

} // namespace engines
