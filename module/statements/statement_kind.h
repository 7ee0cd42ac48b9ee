// What the three statements differ in: a table that a bookkeeper could read.
#pragma once

#include <span>

#include "module/statements/statement_formula.h"

namespace module {

enum class StatementContent { Item, LineNumber, Amount };

// A column of the printed form. The grid of amounts shows the amount, the grid of formulas the
// formula that it is reckoned from; items and line numbers are the same in both.
struct StatementColumn {
    StatementContent content;
    const char* field;
    const char* title; // "letter|title"
    const char* formula_field;
    const char* formula_title;
};

struct FieldLabel {
    const char* field;
    int size;          // characters
    const char* label; // what messages call it
};

struct StatementKind {
    const char* caption;
    const char* table;
    std::span<const StatementColumn> columns;
    std::span<const FieldLabel> labels;
    FormulaWords words;
    const char* opening_query;    // the lines as the form opens; the layout's number goes behind it
    const char* layout_query;     // the same when another layout was chosen; null: one layout only
    bool opens_at_current_period; // the period is taken from the books when the form opens
    int passes;        // 1: every formula once; more: those that look at other lines after the rest
    bool two_decimals; // amounts are kept with two decimals; else in their shortest form
    const char* clear_blanks; // the batch after each save
};

} // namespace module
