// What functions, procedures and triggers have in common: parameters, options, bodies.
#include "tsql/parser/grammar.h"

namespace tsql {

namespace {

Parameter parse_parameter(TokenCursor& cursor) {
    Parameter parameter;
    const SourceRange begin = cursor.peek().at;
    parameter.name = parse_variable_name(cursor);
    cursor.accept(Keyword::As);
    parameter.type = parse_type(cursor);
    if (cursor.accept(Keyword::Null)) {
    } // the only nullability a parameter can have
    if (cursor.accept(TokenKind::Equal)) parameter.default_value = parse_constant(cursor);
    parameter.output = cursor.accept(Keyword::Output) || cursor.accept(Keyword::Out);
    if (cursor.at(Keyword::Readonly))
        cursor.refuse_unsupported("A table-valued parameter", cursor.peek().at);
    parameter.at = cursor.since(begin);
    return parameter;
}

} // namespace

ExpressionPtr parse_constant(TokenCursor& cursor) {
    const SourceRange begin = cursor.peek().at;
    if (cursor.at(TokenKind::Minus) || cursor.at(TokenKind::Plus)) {
        auto sign = std::make_unique<Unary>();
        sign->op =
            cursor.take().kind == TokenKind::Minus ? UnaryOperator::Minus : UnaryOperator::Plus;
        sign->operand = parse_literal(cursor);
        sign->at = cursor.since(begin);
        return sign;
    }
    if (cursor.at(Keyword::Null) || cursor.peek().is_literal()) return parse_literal(cursor);
    const Name word = parse_name(cursor); // a bare word is a text
    auto text = std::make_unique<Literal>();
    text->type = LiteralKind::Text;
    text->text = word.text;
    text->at = word.at;
    return text;
}

std::vector<Parameter> parse_parameters(TokenCursor& cursor) {
    std::vector<Parameter> parameters;
    if (!cursor.at(TokenKind::Variable)) return parameters;
    do parameters.push_back(parse_parameter(cursor));
    while (cursor.accept(TokenKind::Comma));
    return parameters;
}

void skip_routine_options(TokenCursor& cursor) {
    if (!cursor.accept(Keyword::With)) return;
    do {
        if (cursor.accept(Keyword::Execute) || cursor.accept(Keyword::Exec)) { // EXECUTE AS OWNER
            cursor.expect(Keyword::As);
            if (!cursor.at(TokenKind::Text))
                parse_name(cursor);
            else
                cursor.take();
        } else if (cursor.accept(Keyword::Schemabinding) || cursor.accept(Keyword::Encryption) ||
                   cursor.accept(Keyword::Recompile)) {
            continue;
        } else { // RETURNS NULL ON NULL INPUT and CALLED ON NULL INPUT
            if (!cursor.accept(Keyword::Called)) {
                cursor.expect(Keyword::Returns);
                cursor.expect(Keyword::Null);
            }
            cursor.expect(Keyword::On);
            cursor.expect(Keyword::Null);
            cursor.expect(Keyword::Input);
        }
    } while (cursor.accept(TokenKind::Comma));
}

void require_end_of_batch(TokenCursor& cursor) {
    while (cursor.accept(TokenKind::Semicolon)) {
    }
    if (!cursor.at_end()) cursor.refuse_here();
}

std::vector<StatementPtr> parse_body_to_end(TokenCursor& cursor) {
    std::vector<StatementPtr> body = parse_statements(cursor);
    if (body.empty() || !cursor.at_end()) cursor.refuse_here();
    return body;
}

} // namespace tsql
