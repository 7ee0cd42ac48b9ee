// EXEC of procedures and of texts.
#include "tsql/parser/grammar.h"

namespace tsql {

namespace {

ExpressionPtr parse_argument_value(TokenCursor& cursor) {
    if (cursor.at(TokenKind::Variable) || cursor.at(TokenKind::SystemVariable))
        return parse_primary(cursor);
    if (cursor.at(Keyword::Default)) {
        auto mark = std::make_unique<DefaultMark>();
        mark->at = cursor.take().at;
        return mark;
    }
    return parse_constant(cursor);
}

Argument parse_argument(TokenCursor& cursor) {
    Argument argument;
    const SourceRange begin = cursor.peek().at;
    if (cursor.at(TokenKind::Variable) && cursor.peek(1).kind == TokenKind::Equal) {
        argument.name = parse_variable_name(cursor);
        cursor.take();
    }
    argument.value = parse_argument_value(cursor);
    argument.output = cursor.accept(Keyword::Output) || cursor.accept(Keyword::Out);
    argument.at = cursor.since(begin);
    return argument;
}

// Whether an argument begins here rather than the next statement.
bool at_argument(const TokenCursor& cursor) {
    const Token& next = cursor.peek();
    return next.is_literal() || next.kind == TokenKind::Variable ||
           next.kind == TokenKind::SystemVariable || next.kind == TokenKind::Minus ||
           next.kind == TokenKind::Plus || cursor.at(Keyword::Null) ||
           cursor.at(Keyword::Default) || at_name(cursor);
}

StatementPtr parse_text(TokenCursor& cursor) {
    auto execute = std::make_unique<ExecuteText>();
    cursor.expect(TokenKind::LeftParenthesis);
    execute->text = parse_value(cursor);
    if (cursor.at(TokenKind::Comma))
        cursor.refuse_unsupported("EXEC of a text with arguments", cursor.peek().at);
    cursor.expect(TokenKind::RightParenthesis);
    if (cursor.at_word("AT")) cursor.refuse_unsupported("A linked server", cursor.peek().at);
    if (cursor.at(Keyword::As)) cursor.refuse_unsupported("EXEC AS", cursor.peek().at);
    return execute;
}

StatementPtr parse_call(TokenCursor& cursor, std::string return_variable) {
    auto execute = std::make_unique<Execute>();
    execute->return_variable = std::move(return_variable);
    execute->procedure = parse_object_name(cursor);
    if (at_argument(cursor)) {
        do execute->arguments.push_back(parse_argument(cursor));
        while (cursor.accept(TokenKind::Comma));
    }
    if (cursor.at(Keyword::With, Keyword::Recompile)) {
        cursor.take();
        cursor.take();
    }
    return execute;
}

} // namespace

StatementPtr parse_execute(TokenCursor& cursor) {
    cursor.take(); // EXEC or EXECUTE
    if (cursor.at(TokenKind::LeftParenthesis)) return parse_text(cursor);
    if (cursor.at(Keyword::As)) cursor.refuse_unsupported("EXECUTE AS", cursor.peek().at);
    std::string return_variable;
    if (cursor.at(TokenKind::Variable)) {
        if (cursor.peek(1).kind != TokenKind::Equal)
            cursor.refuse_unsupported("EXEC of a procedure named by a variable", cursor.peek().at);
        return_variable = parse_variable_name(cursor);
        cursor.take();
    }
    return parse_call(cursor, std::move(return_variable));
}

StatementPtr parse_call_without_execute(TokenCursor& cursor) {
    return parse_call(cursor, "");
}

} // namespace tsql
