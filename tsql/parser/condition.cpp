// Conditions: comparisons and predicates, NOT, AND, OR.
#include "tsql/parser/grammar.h"
#include "tsql/source/diagnostic.h"

namespace tsql {

namespace {

void require_condition(const TokenCursor& cursor, const Expression& expression) {
    if (expression.is_condition()) return;
    const Token& next = cursor.peek();
    const std::string_view near =
        cursor.at_end() ? expression.at.text(cursor.batch()) : next.at.text(cursor.batch());
    throw Refusal(4145, expression.at,
                  "An expression of non-boolean type specified in a context where a condition is "
                  "expected, near '" +
                      std::string(near) + "'.");
}

std::optional<ComparisonOperator> comparison_of(TokenKind kind) {
    switch (kind) {
    case TokenKind::Equal: return ComparisonOperator::Equal;
    case TokenKind::NotEqual: return ComparisonOperator::NotEqual;
    case TokenKind::Less: return ComparisonOperator::Less;
    case TokenKind::LessEqual: return ComparisonOperator::LessEqual;
    case TokenKind::Greater: return ComparisonOperator::Greater;
    case TokenKind::GreaterEqual: return ComparisonOperator::GreaterEqual;
    default: return std::nullopt;
    }
}

ExpressionPtr parse_operand(TokenCursor& cursor) {
    ExpressionPtr operand = parse_sum(cursor);
    require_value(cursor, *operand);
    return operand;
}

ExpressionPtr parse_comparison(TokenCursor& cursor, ComparisonOperator op, ExpressionPtr left) {
    const Token& sign = cursor.take();
    if (cursor.at(Keyword::All) || cursor.at(Keyword::Any) || cursor.at(Keyword::Some)) {
        auto quantified = std::make_unique<QuantifiedComparison>();
        quantified->op = op;
        quantified->all = cursor.take().keyword == Keyword::All;
        quantified->operand = std::move(left);
        quantified->query = parse_subquery(cursor);
        return quantified;
    }
    auto comparison = std::make_unique<Comparison>();
    comparison->op = op;
    comparison->op_at = sign.at;
    comparison->left = std::move(left);
    comparison->right = parse_operand(cursor);
    return comparison;
}

ExpressionPtr parse_in(TokenCursor& cursor, ExpressionPtr operand, bool negated) {
    cursor.expect(Keyword::In);
    if (cursor.at(TokenKind::LeftParenthesis) && cursor.peek(1).keyword == Keyword::Select) {
        auto in = std::make_unique<InQuery>();
        in->operand = std::move(operand);
        in->negated = negated;
        in->query = parse_subquery(cursor);
        return in;
    }
    auto in = std::make_unique<InList>();
    in->operand = std::move(operand);
    in->negated = negated;
    cursor.expect(TokenKind::LeftParenthesis);
    in->values = parse_values(cursor);
    cursor.expect(TokenKind::RightParenthesis);
    return in;
}

ExpressionPtr parse_between(TokenCursor& cursor, ExpressionPtr operand, bool negated) {
    cursor.expect(Keyword::Between);
    auto between = std::make_unique<Between>();
    between->operand = std::move(operand);
    between->negated = negated;
    between->low = parse_operand(cursor);
    cursor.expect(Keyword::And);
    between->high = parse_operand(cursor);
    return between;
}

ExpressionPtr parse_like(TokenCursor& cursor, ExpressionPtr operand, bool negated) {
    cursor.expect(Keyword::Like);
    auto like = std::make_unique<Like>();
    like->operand = std::move(operand);
    like->negated = negated;
    like->pattern = parse_operand(cursor);
    if (cursor.accept(Keyword::Escape)) like->escape = parse_operand(cursor);
    return like;
}

ExpressionPtr parse_is_null(TokenCursor& cursor, ExpressionPtr operand) {
    cursor.expect(Keyword::Is);
    auto is_null = std::make_unique<IsNull>();
    is_null->operand = std::move(operand);
    is_null->negated = cursor.accept(Keyword::Not);
    cursor.expect(Keyword::Null);
    return is_null;
}

// What follows a value and makes it a condition; the value itself when nothing does.
ExpressionPtr parse_predicate_after(TokenCursor& cursor, ExpressionPtr operand) {
    if (const auto op = comparison_of(cursor.peek().kind))
        return parse_comparison(cursor, *op, std::move(operand));
    if (cursor.at(Keyword::Is)) return parse_is_null(cursor, std::move(operand));
    const bool negated = cursor.at(Keyword::Not) && (cursor.peek(1).keyword == Keyword::In ||
                                                     cursor.peek(1).keyword == Keyword::Between ||
                                                     cursor.peek(1).keyword == Keyword::Like);
    if (negated) cursor.take();
    if (cursor.at(Keyword::In)) return parse_in(cursor, std::move(operand), negated);
    if (cursor.at(Keyword::Between)) return parse_between(cursor, std::move(operand), negated);
    if (cursor.at(Keyword::Like)) return parse_like(cursor, std::move(operand), negated);
    return operand;
}

ExpressionPtr parse_predicate(TokenCursor& cursor) {
    const SourceRange begin = cursor.peek().at;
    ExpressionPtr operand = parse_sum(cursor);
    if (operand->is_condition()) return operand;
    const Expression* alone = operand.get();
    ExpressionPtr predicate = parse_predicate_after(cursor, std::move(operand));
    if (predicate.get() != alone) predicate->at = cursor.since(begin);
    return predicate;
}

ExpressionPtr parse_not(TokenCursor& cursor) {
    if (!cursor.at(Keyword::Not)) return parse_predicate(cursor);
    const TokenCursor::Nesting nesting(cursor);
    const SourceRange begin = cursor.take().at;
    auto negation = std::make_unique<Not>();
    negation->operand = parse_not(cursor);
    require_condition(cursor, *negation->operand);
    negation->at = cursor.since(begin);
    return negation;
}

template <typename ParseOperand>
ExpressionPtr parse_chain(TokenCursor& cursor, Keyword word, LogicalOperator op,
                          ParseOperand parse_part) {
    ExpressionPtr first = parse_part(cursor);
    if (!cursor.at(word)) return first;
    auto chain = std::make_unique<Logical>();
    chain->op = op;
    const SourceRange begin = first->at;
    require_condition(cursor, *first);
    chain->operands.push_back(std::move(first));
    while (cursor.accept(word)) {
        chain->operands.push_back(parse_part(cursor));
        require_condition(cursor, *chain->operands.back());
    }
    chain->at = cursor.since(begin);
    return chain;
}

ExpressionPtr parse_conjunction(TokenCursor& cursor) {
    return parse_chain(cursor, Keyword::And, LogicalOperator::And, parse_not);
}

} // namespace

ExpressionPtr parse_any(TokenCursor& cursor) {
    const TokenCursor::Nesting nesting(cursor);
    return parse_chain(cursor, Keyword::Or, LogicalOperator::Or, parse_conjunction);
}

ExpressionPtr parse_condition(TokenCursor& cursor) {
    ExpressionPtr condition = parse_any(cursor);
    require_condition(cursor, *condition);
    return condition;
}

} // namespace tsql
