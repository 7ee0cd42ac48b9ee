// The shown columns of ordered rows: cells, constants and choices between them.
#pragma once

#include <vector>

#include "engines/sqlite/executor/ordered_rows.h"
#include "engines/sqlite/functions/runtime.h"

namespace engines {

// Makes the shown columns of one row after the other. What a step decides by itself is decided once
// for all rows. Everything handed over outlives it.
class ShownRow {
public:
    // constants: the values of order.constants, in that order.
    ShownRow(const tsql::RowOrder& order, const OrderedRows& rows,
             const std::vector<OwnedValue>& constants);

    // How often each row is looked at: once a step, once where there are no steps.
    std::size_t steps() const { return trees_.size(); }
    // The step that is being taken, from 0.
    void take(std::size_t step) { tree_ = &trees_[step]; }
    // Whether the row is shown at this step.
    bool is_wanted(std::size_t row) const;
    // The value of a shown column at a row, read as the type says. Error 8115 when too large.
    Stored value(std::size_t row, std::size_t column, const tsql::Type& type) const;

private:
    // What is shown at one step: the step is a number here, and choices that do not depend on the
    // row are made.
    struct Tree {
        std::vector<tsql::ShownValue> values;
        std::vector<int> shown;
        int condition = -1;
    };
    Tree tree_of(const tsql::RowOrder& order, std::int64_t step) const;
    int chosen(const Tree& tree, tsql::ShownValue& choice) const;
    // Whether the value is the same in every row; then it is put into `cell`.
    bool is_fixed(const tsql::ShownValue& value, RowCell& cell) const;
    const tsql::ShownValue& node(int number) const {
        return tree_->values[static_cast<std::size_t>(number)];
    }
    bool are_equal(std::size_t row, const tsql::ShownValue::Branch& branch) const;
    // The whole number that a value is at a row; false for anything else.
    bool number_of(std::size_t row, int number, std::int64_t& value) const;
    RowCell evaluate(std::size_t row, int number) const;

    const OrderedRows& rows_;
    std::vector<RowCell> constants_;
    std::vector<Tree> trees_; // by step
    const Tree* tree_ = nullptr;
};

} // namespace engines
