// GROUP BY: what may stand in the list of a grouped query, and the sets of ROLLUP and CUBE.
#include "tsql/binder/binder.h"
#include "tsql/binder/same_expression.h"
#include "tsql/source/diagnostic.h"

#include <algorithm>

namespace tsql {

void Binder::bind_grouping(const Select& node, Scope& scope, BoundSelect& select) {
    for (const ExpressionPtr& expression : node.group_by) {
        select.group_by.push_back(bind_value(*expression, scope));
        if (select.group_by.back()->kind == BoundKind::Literal) {
            throw Refusal(164, expression->at,
                          "Each GROUP BY expression must contain at least one column that is not "
                          "an outer reference.");
        }
    }
    const std::size_t count = select.group_by.size();
    if (node.grouping == GroupingKind::Rollup) {
        for (std::size_t kept = count + 1; kept-- > 0;) {
            std::vector<bool> set(count, false);
            std::fill_n(set.begin(), kept, true);
            select.grouping_sets.push_back(std::move(set));
        }
    } else if (node.grouping == GroupingKind::Cube) {
        if (count > 10) {
            throw Refusal(10703, node.at, "Too many grouping sets.");
        }
        for (unsigned mask = (1U << count); mask-- > 0;) {
            std::vector<bool> set(count, false);
            for (std::size_t i = 0; i < count; ++i) {
                set[i] = (mask >> (count - 1 - i) & 1U) != 0;
            }
            select.grouping_sets.push_back(std::move(set));
        }
    }
}

bool Binder::same(const BoundPtr& left, const BoundPtr& right) {
    return same_expression(left, right, &context_.literals.pinned);
}

void Binder::check_grouping(const BoundSelect& select, const Scope& scope,
                            const BoundPtr& expression, int error) {
    if (!expression) {
        return;
    }
    for (const BoundPtr& group : select.group_by) {
        if (same(group, expression)) {
            return;
        }
    }
    if (expression->kind == BoundKind::Aggregate &&
        !static_cast<const BoundAggregate&>(*expression).window) {
        return;
    }
    if (expression->kind == BoundKind::Column) {
        const auto& column = static_cast<const BoundColumn&>(*expression);
        const bool own =
            std::any_of(scope.tables.begin(), scope.tables.end(),
                        [&](const auto& table) { return table.get() == column.table; });
        if (own) {
            const std::string name =
                column.table->alias + "." +
                column.table->columns[static_cast<std::size_t>(column.ordinal)].name;
            const char* place = error == 8120   ? "select list"
                                : error == 8121 ? "HAVING clause"
                                                : "ORDER BY clause";
            throw Refusal(error, expression->at,
                          "Column '" + name + "' is invalid in the " + place +
                              " because it is not contained in either an aggregate function or "
                              "the GROUP BY clause.");
        }
    }
    for (const BoundPtr& part : parts_of(*expression)) {
        check_grouping(select, scope, part, error);
    }
}

} // namespace tsql
