// Conditions: comparisons bring both sides to one type; NULL makes them unknown.
#include "tsql/binder/binder.h"
#include "tsql/source/diagnostic.h"

namespace tsql {

namespace {

Collation stronger(Collation left, Collation right) {
    return left != Collation::Database ? left : right;
}

std::shared_ptr<BoundComparison> comparison(ComparisonOperator op, BoundPtr left, BoundPtr right,
                                            SourceRange at) {
    auto bound = std::make_shared<BoundComparison>();
    bound->at = at;
    bound->op = op;
    bound->collation = stronger(left->collation, right->collation);
    bound->left = std::move(left);
    bound->right = std::move(right);
    return bound;
}

} // namespace

BoundPtr Binder::compare(ComparisonOperator op, BoundPtr left, BoundPtr right, SourceRange at) {
    if (left->type.is_text() && right->type.is_text()) {
        return comparison(op, std::move(left), std::move(right), at);
    }
    // Exact numbers of different scales are compared as they are; the emitter scales them.
    if (left->type.is_exact() && right->type.is_exact()) {
        return comparison(op, std::move(left), std::move(right), at);
    }
    const Type type = common_type(left->type, right->type);
    left = convert(std::move(left), type);
    right = convert(std::move(right), type);
    return comparison(op, std::move(left), std::move(right), at);
}

BoundPtr Binder::bind_logical(const Logical& logical, Scope& scope) {
    auto bound = std::make_shared<BoundLogical>();
    bound->at = logical.at;
    bound->op = logical.op;
    for (const ExpressionPtr& operand : logical.operands) {
        bound->operands.push_back(bind_condition(*operand, scope));
    }
    return bound;
}

BoundPtr Binder::bind_between(const Between& between, Scope& scope) {
    const BoundPtr operand = bind_value(*between.operand, scope);
    auto both = std::make_shared<BoundLogical>();
    both->at = between.at;
    const bool negated = between.negated;
    both->op = negated ? LogicalOperator::Or : LogicalOperator::And;
    both->operands.push_back(
        compare(negated ? ComparisonOperator::Less : ComparisonOperator::GreaterEqual, operand,
                bind_value(*between.low, scope), between.at));
    both->operands.push_back(
        compare(negated ? ComparisonOperator::Greater : ComparisonOperator::LessEqual, operand,
                bind_value(*between.high, scope), between.at));
    return both;
}

BoundPtr Binder::bind_in_list(const InList& list, Scope& scope) {
    BoundPtr operand = bind_value(*list.operand, scope);
    std::vector<BoundPtr> values;
    Type type = operand->type;
    bool exact = operand->type.is_exact();
    for (const ExpressionPtr& value : list.values) {
        values.push_back(bind_value(*value, scope));
        type = common_type(type, values.back()->type);
        exact = exact && values.back()->type == operand->type;
    }
    if (!exact && !type.is_text()) {
        operand = convert(operand, type);
        for (BoundPtr& value : values) {
            value = convert(value, type);
        }
    }
    auto bound = std::make_shared<BoundInList>();
    bound->at = list.at;
    bound->negated = list.negated;
    bound->collation = operand->collation;
    bound->operand = std::move(operand);
    bound->values = std::move(values);
    return bound;
}

void Binder::expect_one_column(const BoundQuery& query, SourceRange at) {
    if (query.columns.size() != 1) {
        throw Refusal(116, at,
                      "Only one expression can be specified in the select list when the subquery "
                      "is not introduced with EXISTS.");
    }
}

BoundPtr Binder::bind_in_query(const InQuery& node, Scope& scope) {
    auto bound = std::make_shared<BoundSubquery>(BoundKind::InQuery);
    bound->at = node.at;
    bound->negated = node.negated;
    bound->operand = bind_value(*node.operand, scope);
    bound->query = bind_query(*node.query, &scope, false);
    expect_one_column(*bound->query, node.query->at);
    const Type& inner = bound->query->columns[0].type;
    if (!(bound->operand->type.is_text() && inner.is_text())) {
        bound->type = common_type(bound->operand->type, inner);
        bound->operand = convert(bound->operand, bound->type);
    } else {
        bound->type = bound->operand->type;
    }
    bound->collation = bound->operand->collation;
    return bound;
}

BoundPtr Binder::bind_like(const Like& like, Scope& scope) {
    const auto text = [&](const ExpressionPtr& expression) {
        BoundPtr value = bind_value(*expression, scope);
        return value->type.is_text() ? value : convert(value, Type::varchar(8000));
    };
    auto bound = std::make_shared<BoundLike>();
    bound->at = like.at;
    bound->negated = like.negated;
    bound->operand = text(like.operand);
    bound->pattern = text(like.pattern);
    if (like.escape) {
        bound->escape = text(like.escape);
    }
    bound->collation = stronger(bound->operand->collation, bound->pattern->collation);
    return bound;
}

BoundPtr Binder::bind_quantified(const QuantifiedComparison& node, Scope& scope) {
    auto bound = std::make_shared<BoundSubquery>(BoundKind::Quantified);
    bound->at = node.at;
    bound->op = node.op;
    bound->all = node.all;
    bound->operand = bind_value(*node.operand, scope);
    bound->query = bind_query(*node.query, &scope, false);
    expect_one_column(*bound->query, node.query->at);
    bound->type = common_type(bound->operand->type, bound->query->columns[0].type);
    bound->operand = convert(bound->operand, bound->type);
    bound->collation = bound->operand->collation;
    return bound;
}

BoundPtr Binder::bind_updated(const ColumnUpdated& node) {
    const auto& table = context_.surroundings.trigger_table;
    if (!table) {
        throw Refusal(157, node.at, "UPDATE(column) can be used in a trigger only.");
    }
    const int ordinal = table->find_column(node.column.text);
    if (ordinal < 0) {
        throw Refusal(207, node.column.at, "Invalid column name '" + node.column.text + "'.");
    }
    auto value = std::make_shared<BoundValue>();
    value->at = node.at;
    value->source = ParameterSource::System;
    value->system = SystemValue::UpdatedColumn;
    value->index = ordinal;
    value->type = Type::of(TypeKind::Bit);
    return compare(ComparisonOperator::Equal, value, literal_int(1, node.at), node.at);
}

BoundPtr Binder::bind_condition(const Expression& expression, Scope& scope) {
    switch (expression.kind) {
    case ExpressionKind::Comparison: {
        const auto& node = as<Comparison>(expression);
        BoundPtr left = bind_value(*node.left, scope);
        return compare(node.op, std::move(left), bind_value(*node.right, scope), node.at);
    }
    case ExpressionKind::Logical: return bind_logical(as<Logical>(expression), scope);
    case ExpressionKind::Not: {
        auto bound = std::make_shared<BoundUnary>(BoundKind::Not);
        bound->at = expression.at;
        bound->operand = bind_condition(*as<Not>(expression).operand, scope);
        return bound;
    }
    case ExpressionKind::Between: return bind_between(as<Between>(expression), scope);
    case ExpressionKind::InList: return bind_in_list(as<InList>(expression), scope);
    case ExpressionKind::InQuery: return bind_in_query(as<InQuery>(expression), scope);
    case ExpressionKind::Like: return bind_like(as<Like>(expression), scope);
    case ExpressionKind::IsNull: {
        auto bound = std::make_shared<BoundUnary>(BoundKind::IsNull);
        bound->at = expression.at;
        bound->negated = as<IsNull>(expression).negated;
        bound->operand = bind_value(*as<IsNull>(expression).operand, scope);
        return bound;
    }
    case ExpressionKind::Exists: {
        auto bound = std::make_shared<BoundSubquery>(BoundKind::Exists);
        bound->at = expression.at;
        bound->query = bind_query(*as<Exists>(expression).query, &scope, false);
        return bound;
    }
    case ExpressionKind::QuantifiedComparison:
        return bind_quantified(as<QuantifiedComparison>(expression), scope);
    case ExpressionKind::ColumnUpdated: return bind_updated(as<ColumnUpdated>(expression));
    default:
        throw Refusal(4145, expression.at,
                      "An expression of non-boolean type specified in a context where a condition "
                      "is expected.");
    }
}

} // namespace tsql
