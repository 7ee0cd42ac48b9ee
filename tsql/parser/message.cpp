// PRINT, RAISERROR and THROW.
#include "tsql/parser/grammar.h"

namespace tsql {

StatementPtr parse_print(TokenCursor& cursor) {
    cursor.expect(Keyword::Print);
    auto print = std::make_unique<Print>();
    print->message = parse_value(cursor);
    return print;
}

StatementPtr parse_raise_error(TokenCursor& cursor) {
    cursor.expect(Keyword::Raiserror);
    auto raise = std::make_unique<RaiseError>();
    cursor.expect(TokenKind::LeftParenthesis);
    raise->message = parse_value(cursor);
    cursor.expect(TokenKind::Comma);
    raise->severity = parse_value(cursor);
    cursor.expect(TokenKind::Comma);
    raise->state = parse_value(cursor);
    while (cursor.accept(TokenKind::Comma)) raise->arguments.push_back(parse_value(cursor));
    cursor.expect(TokenKind::RightParenthesis);
    if (cursor.accept(Keyword::With)) {
        do raise->options.push_back(parse_name(cursor));
        while (cursor.accept(TokenKind::Comma));
    }
    return raise;
}

StatementPtr parse_throw(TokenCursor& cursor) {
    cursor.expect(Keyword::Throw);
    auto statement = std::make_unique<Throw>();
    if (!cursor.peek().is_literal() && !cursor.at(TokenKind::Variable)) return statement;
    statement->number = parse_value(cursor);
    cursor.expect(TokenKind::Comma);
    statement->message = parse_value(cursor);
    cursor.expect(TokenKind::Comma);
    statement->state = parse_value(cursor);
    return statement;
}

} // namespace tsql
