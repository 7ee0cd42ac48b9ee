// UPDATE: every right side reads the row as it was; each row of the target changes once.
#include "tsql/binder/binder.h"
#include "tsql/source/diagnostic.h"

namespace tsql {

BoundUpdate Binder::bind_update(const Update& update) {
    BoundUpdate bound;
    Scope scope;
    bind_with(update.with, scope, bound.with, std::nullopt);
    BoundPtr view_condition;
    bound.target_in_from =
        find_target(update.target, update.from, scope, bound, bound.from, view_condition);
    for (const Assignment& assignment : update.set) {
        if (!assignment.variable.empty()) {
            throw Refusal(102, assignment.at,
                          "SET @variable in UPDATE is not supported; read the value by OUTPUT.");
        }
        Scope columns;
        columns.tables = scope.tables;
        if (bound.target_in_from) {
            columns.tables = {bound.target};
        }
        BoundSet set;
        set.column = target_column(assignment.column, columns, bound);
        const CatalogColumn& column = bound.table->columns[static_cast<std::size_t>(set.column)];
        if (!column.computed.empty() || column.identity) {
            throw Refusal(column.identity ? 8102 : 271, assignment.at,
                          column.identity ? "Cannot update identity column '" + column.name + "'."
                                          : "The column \"" + column.name +
                                                "\" cannot be modified because it is a computed "
                                                "column.");
        }
        for (const BoundSet& other : bound.set) {
            if (other.column == set.column) {
                throw Refusal(264, assignment.at,
                              "The column name '" + column.name +
                                  "' is specified more than once in the SET clause.");
            }
        }
        if (assignment.value->kind == ExpressionKind::DefaultMark) {
            set.value = default_value(column);
        } else {
            BoundPtr value = bind_value(*assignment.value, scope);
            if (assignment.op != AssignOperator::Assign) {
                ColumnReference old;
                old.name = assignment.column;
                old.at = assignment.at;
                const auto op = static_cast<BinaryOperator>(static_cast<int>(assignment.op) - 1);
                value = arithmetic(op, bind_column(old, scope), std::move(value), assignment.at);
            }
            set.value = assigned_value(column, std::move(value));
        }
        bound.set.push_back(std::move(set));
    }
    bound.where = bind_rest(update, view_condition, scope, bound, DmlKind::Update);
    return bound;
}

} // namespace tsql
