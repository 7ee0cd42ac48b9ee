// Compares expressions node by node.
#include "tsql/binder/same_expression.h"

#include "tsql/binder/scope.h"

#include <algorithm>

namespace tsql {

namespace {

std::vector<BoundPtr> case_parts(const BoundCase& whole) {
    std::vector<BoundPtr> parts{whole.subject};
    for (const BoundCaseBranch& branch : whole.branches) {
        parts.push_back(branch.when);
        parts.push_back(branch.then);
    }
    parts.push_back(whole.otherwise);
    return parts;
}

std::vector<BoundPtr> aggregate_parts(const BoundAggregate& aggregate) {
    std::vector<BoundPtr> parts = aggregate.arguments;
    if (aggregate.window) {
        parts.insert(parts.end(), aggregate.window->partition.begin(),
                     aggregate.window->partition.end());
        for (const BoundOrder& order : aggregate.window->order) {
            parts.push_back(order.expression);
        }
    }
    return parts;
}

} // namespace

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
    case BoundKind::Case: return case_parts(static_cast<const BoundCase&>(node));
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
    case BoundKind::Aggregate: return aggregate_parts(static_cast<const BoundAggregate&>(node));
    default: return parts;
    }
}

namespace {

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

bool same_expression(const BoundPtr& left, const BoundPtr& right, std::set<int>* pinned) {
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
            if (literal->ordinal >= 0 && pinned != nullptr) {
                pinned->insert(literal->ordinal);
            }
        }
        return a.literal == b.literal && a.text == b.text;
    }
    const std::vector<BoundPtr> left_parts = parts_of(*left);
    const std::vector<BoundPtr> right_parts = parts_of(*right);
    return same_head(*left, *right) && left_parts.size() == right_parts.size() &&
           std::equal(
               left_parts.begin(), left_parts.end(), right_parts.begin(),
               [&](const BoundPtr& a, const BoundPtr& b) { return same_expression(a, b, pinned); });
}

} // namespace tsql
