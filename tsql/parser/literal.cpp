// Literals, as nodes or as figures that shape the tree.
#include "tsql/parser/grammar.h"
#include "tsql/parser/parser.h"

#include <charconv>

namespace tsql {

LiteralKind literal_kind(TokenKind kind) {
    switch (kind) {
    case TokenKind::Integer: return LiteralKind::Integer;
    case TokenKind::Decimal: return LiteralKind::Decimal;
    case TokenKind::Float: return LiteralKind::Float;
    case TokenKind::Money: return LiteralKind::Money;
    case TokenKind::NationalText: return LiteralKind::NationalText;
    case TokenKind::Binary: return LiteralKind::Binary;
    default: return LiteralKind::Text;
    }
}

ExpressionPtr parse_literal(TokenCursor& cursor) {
    const Token& token = cursor.peek();
    auto literal = std::make_unique<Literal>();
    literal->at = token.at;
    if (cursor.accept(Keyword::Null)) return literal;
    if (!token.is_literal()) cursor.refuse_here();
    cursor.take();
    literal->type = literal_kind(token.kind);
    literal->text = cursor.value(token);
    literal->ordinal = token.literal_ordinal;
    cursor.note_literal_node(token);
    return literal;
}

std::int64_t parse_signed_integer(TokenCursor& cursor) {
    const bool negative = cursor.accept(TokenKind::Minus);
    if (!negative) cursor.accept(TokenKind::Plus);
    const Token& token = cursor.expect(TokenKind::Integer);
    const std::string_view digits = token.at.text(cursor.batch());
    std::int64_t figure = 0;
    const auto error = std::from_chars(digits.data(), digits.data() + digits.size(), figure).ec;
    if (error != std::errc{}) cursor.refuse(token);
    return negative ? -figure : figure;
}

} // namespace tsql
