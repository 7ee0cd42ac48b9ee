// BEGIN … END, IF, WHILE, RETURN and TRY.
#include "tsql/parser/grammar.h"

namespace tsql {

StatementPtr parse_begin(TokenCursor& cursor) {
    switch (cursor.peek(1).keyword) {
    case Keyword::Tran:
    case Keyword::Transaction: return parse_begin_transaction(cursor);
    case Keyword::Try: return parse_try(cursor);
    case Keyword::Distributed:
        cursor.refuse_unsupported("A distributed transaction", cursor.peek().at);
    default: break;
    }
    cursor.expect(Keyword::Begin);
    auto block = std::make_unique<Block>();
    block->statements = parse_statements(cursor);
    if (block->statements.empty()) cursor.refuse_here();
    cursor.expect(Keyword::End);
    return block;
}

StatementPtr parse_if(TokenCursor& cursor) {
    cursor.expect(Keyword::If);
    auto branch = std::make_unique<If>();
    branch->condition = parse_condition(cursor);
    branch->then = parse_statement(cursor);
    if (cursor.accept(Keyword::Else)) branch->otherwise = parse_statement(cursor);
    return branch;
}

StatementPtr parse_while(TokenCursor& cursor) {
    cursor.expect(Keyword::While);
    auto loop = std::make_unique<While>();
    loop->condition = parse_condition(cursor);
    loop->body = parse_statement(cursor);
    return loop;
}

StatementPtr parse_return(TokenCursor& cursor) {
    cursor.expect(Keyword::Return);
    auto statement = std::make_unique<Return>();
    // A value follows unless the statement ends here; a reserved word begins another statement.
    const Token& next = cursor.peek();
    const bool value = next.kind == TokenKind::LeftParenthesis ||
                       next.kind == TokenKind::Variable || next.kind == TokenKind::SystemVariable ||
                       next.is_literal() || next.kind == TokenKind::Minus ||
                       next.kind == TokenKind::Plus || next.kind == TokenKind::Tilde ||
                       at_name(cursor) || at_function_call(cursor) || cursor.at(Keyword::Case) ||
                       cursor.at(Keyword::Null) || cursor.at(Keyword::Convert) ||
                       cursor.at(Keyword::TryConvert) || cursor.at(Keyword::CurrentTimestamp);
    if (value) statement->value = parse_value(cursor);
    return statement;
}

StatementPtr parse_try(TokenCursor& cursor) {
    auto attempt = std::make_unique<Try>();
    cursor.expect(Keyword::Begin);
    cursor.expect(Keyword::Try);
    attempt->body = parse_statements(cursor);
    cursor.expect(Keyword::End);
    cursor.expect(Keyword::Try);
    cursor.accept(TokenKind::Semicolon);
    cursor.expect(Keyword::Begin);
    cursor.expect(Keyword::Catch);
    attempt->handler = parse_statements(cursor);
    cursor.expect(Keyword::End);
    cursor.expect(Keyword::Catch);
    return attempt;
}

} // namespace tsql
