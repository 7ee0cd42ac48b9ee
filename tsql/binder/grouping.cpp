// GROUP BY: what may stand in the list of a grouped query, and the sets of ROLLUP and CUBE.
#include "tsql/binder/binder.h"
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

bool Binder::same_parts(const std::vector<BoundPtr>& left, const std::vector<BoundPtr>& right) {
    return left.size() == right.size() &&
           std::equal(left.begin(), left.end(), right.begin(),
                      [&](const BoundPtr& a, const BoundPtr& b) { return same(a, b); });
}

namespace {

// The direct operands of an expression; subqueries are leaves.
std::vector<BoundPtr> parts_of(const BoundExpression& node) {
    std::vector<BoundPtr> parts;
    switch (node.kind) {
    case BoundKind::Arithmetic: {
        const auto& arithmetic = static_cast<const BoundArithmetic&>(node);
        return {arithmetic.left, arithmetic.right};
    }
    case BoundKind::Negate:
    case BoundKind::BitNot:
    case BoundKind::Not:
    case BoundKind::IsNull: return {static_cast<const BoundUnary&>(node).operand};
    case BoundKind::Concatenation: return static_cast<const BoundConcatenation&>(node).parts;
    case BoundKind::Convert: return {static_cast<const BoundConvert&>(node).operand};
    case BoundKind::Function: return static_cast<const BoundFunction&>(node).arguments;
    case BoundKind::UserFunction: return static_cast<const BoundUserFunction&>(node).arguments;
    case BoundKind::Case: {
        const auto& whole = static_cast<const BoundCase&>(node);
        parts.push_back(whole.subject);
        for (const BoundCaseBranch& branch : whole.branches) {
            parts.push_back(branch.when);
            parts.push_back(branch.then);
        }
        parts.push_back(whole.otherwise);
        return parts;
    }
    case BoundKind::Comparison: {
        const auto& comparison = static_cast<const BoundComparison&>(node);
        return {comparison.left, comparison.right};
    }
    case BoundKind::Logical: return static_cast<const BoundLogical&>(node).operands;
    case BoundKind::InList: {
        const auto& list = static_cast<const BoundInList&>(node);
        parts = list.values;
        parts.push_back(list.operand);
        return parts;
    }
    case BoundKind::Like: {
        const auto& like = static_cast<const BoundLike&>(node);
        return {like.operand, like.pattern, like.escape};
    }
    case BoundKind::Aggregate: {
        const auto& aggregate = static_cast<const BoundAggregate&>(node);
        parts = aggregate.arguments;
        if (aggregate.window) {
            parts.insert(parts.end(), aggregate.window->partition.begin(),
                         aggregate.window->partition.end());
            for (const BoundOrder& order : aggregate.window->order) {
                parts.push_back(order.expression);
            }
        }
        return parts;
    }
    default: return parts;
    }
}

// What distinguishes two nodes of one kind beside their operands.
bool same_head(const BoundExpression& left, const BoundExpression& right) {
    switch (left.kind) {
    case BoundKind::Column: {
        const auto& a = static_cast<const BoundColumn&>(left);
        const auto& b = static_cast<const BoundColumn&>(right);
        return a.table == b.table && a.ordinal == b.ordinal;
    }
    case BoundKind::Value: {
        const auto& a = static_cast<const BoundValue&>(left);
        const auto& b = static_cast<const BoundValue&>(right);
        return a.source == b.source && a.system == b.system && a.index == b.index;
    }
    case BoundKind::Arithmetic:
        return static_cast<const BoundArithmetic&>(left).op ==
               static_cast<const BoundArithmetic&>(right).op;
    case BoundKind::Convert: {
        const auto& a = static_cast<const BoundConvert&>(left);
        const auto& b = static_cast<const BoundConvert&>(right);
        return a.mode == b.mode && a.style == b.style;
    }
    case BoundKind::Function: {
        const auto& a = static_cast<const BoundFunction&>(left);
        const auto& b = static_cast<const BoundFunction&>(right);
        return a.name == b.name && a.part == b.part;
    }
    case BoundKind::UserFunction:
        return same_name(static_cast<const BoundUserFunction&>(left).name,
                         static_cast<const BoundUserFunction&>(right).name);
    case BoundKind::Comparison:
        return static_cast<const BoundComparison&>(left).op ==
               static_cast<const BoundComparison&>(right).op;
    case BoundKind::Logical:
        return static_cast<const BoundLogical&>(left).op ==
               static_cast<const BoundLogical&>(right).op;
    case BoundKind::IsNull:
        return static_cast<const BoundUnary&>(left).negated ==
               static_cast<const BoundUnary&>(right).negated;
    case BoundKind::Aggregate: {
        const auto& a = static_cast<const BoundAggregate&>(left);
        const auto& b = static_cast<const BoundAggregate&>(right);
        return a.name == b.name && a.distinct == b.distinct && !a.window && !b.window;
    }
    case BoundKind::InList:
        return static_cast<const BoundInList&>(left).negated ==
               static_cast<const BoundInList&>(right).negated;
    case BoundKind::Like:
        return static_cast<const BoundLike&>(left).negated ==
               static_cast<const BoundLike&>(right).negated;
    case BoundKind::Subquery:
    case BoundKind::Exists:
    case BoundKind::InQuery:
    case BoundKind::Quantified: return false;
    default: return true;
    }
}

} // namespace

bool Binder::same(const BoundPtr& left, const BoundPtr& right) {
    if (left == right) {
        return true;
    }
    if (!left || !right || left->kind != right->kind || left->type != right->type) {
        return false;
    }
    if (left->kind == BoundKind::Literal) {
        const auto& a = static_cast<const BoundLiteral&>(*left);
        const auto& b = static_cast<const BoundLiteral&>(*right);
        for (const BoundLiteral* literal : {&a, &b}) {
            if (literal->ordinal >= 0) {
                context_.literals.pinned.insert(literal->ordinal);
            }
        }
        return a.literal == b.literal && a.text == b.text;
    }
    return same_head(*left, *right) && same_parts(parts_of(*left), parts_of(*right));
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
        const bool own = std::any_of(scope.tables.begin(), scope.tables.end(),
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
