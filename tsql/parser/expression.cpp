// Values: operators by precedence over the primaries.
#include "tsql/parser/grammar.h"

namespace tsql {

namespace {

struct Operator {
    BinaryOperator op;
    int precedence; // 0: no operator
};

// The server gives + - and the bit operators one and the same precedence.
Operator operator_of(TokenKind kind) {
    switch (kind) {
    case TokenKind::Star: return {BinaryOperator::Multiply, 2};
    case TokenKind::Slash: return {BinaryOperator::Divide, 2};
    case TokenKind::Percent: return {BinaryOperator::Modulo, 2};
    case TokenKind::Plus: return {BinaryOperator::Add, 1};
    case TokenKind::Minus: return {BinaryOperator::Subtract, 1};
    case TokenKind::Ampersand: return {BinaryOperator::BitAnd, 1};
    case TokenKind::Bar: return {BinaryOperator::BitOr, 1};
    case TokenKind::Caret: return {BinaryOperator::BitXor, 1};
    default: return {BinaryOperator::Add, 0};
    }
}

std::optional<UnaryOperator> sign_of(TokenKind kind) {
    switch (kind) {
    case TokenKind::Plus: return UnaryOperator::Plus;
    case TokenKind::Minus: return UnaryOperator::Minus;
    case TokenKind::Tilde: return UnaryOperator::BitNot;
    default: return std::nullopt;
    }
}

ExpressionPtr parse_unary(TokenCursor& cursor) {
    const Token& first = cursor.peek();
    const std::optional<UnaryOperator> sign = sign_of(first.kind);
    if (!sign) return parse_primary(cursor);
    const TokenCursor::Nesting nesting(cursor);
    cursor.take();
    auto unary = std::make_unique<Unary>();
    unary->op = *sign;
    unary->operand = parse_unary(cursor);
    require_value(cursor, *unary->operand);
    unary->at = cursor.since(first.at);
    return unary;
}

ExpressionPtr join(TokenCursor& cursor, BinaryOperator op, const Token& sign, ExpressionPtr left,
                   ExpressionPtr right) {
    require_value(cursor, *right);
    auto binary = std::make_unique<Binary>();
    binary->op = op;
    binary->op_at = sign.at;
    binary->at = left->at.up_to(right->at);
    binary->left = std::move(left);
    binary->right = std::move(right);
    return binary;
}

ExpressionPtr parse_product(TokenCursor& cursor) {
    ExpressionPtr left = parse_unary(cursor);
    for (Operator next = operator_of(cursor.peek().kind); next.precedence == 2;
         next = operator_of(cursor.peek().kind)) {
        if (left->is_condition()) cursor.refuse_here();
        const Token& sign = cursor.take();
        cursor.grow_chain();
        left = join(cursor, next.op, sign, std::move(left), parse_unary(cursor));
    }
    return left;
}

} // namespace

void require_value(const TokenCursor& cursor, const Expression& expression) {
    if (expression.is_condition()) cursor.refuse_here();
}

// A condition in parentheses may come out of this: whoever needs a value asks require_value.
ExpressionPtr parse_sum(TokenCursor& cursor) {
    ExpressionPtr left = parse_product(cursor);
    for (Operator next = operator_of(cursor.peek().kind); next.precedence == 1;
         next = operator_of(cursor.peek().kind)) {
        if (left->is_condition()) cursor.refuse_here();
        const Token& sign = cursor.take();
        cursor.grow_chain();
        left = join(cursor, next.op, sign, std::move(left), parse_product(cursor));
    }
    return left;
}

ExpressionPtr parse_value(TokenCursor& cursor) {
    const TokenCursor::Nesting nesting(cursor);
    ExpressionPtr value = parse_sum(cursor);
    require_value(cursor, *value);
    return value;
}

std::vector<ExpressionPtr> parse_values(TokenCursor& cursor) {
    std::vector<ExpressionPtr> values;
    do values.push_back(parse_value(cursor));
    while (cursor.accept(TokenKind::Comma));
    return values;
}

} // namespace tsql
