// DECLARE of variables, table variables and cursors.
#include "tsql/parser/grammar.h"

namespace tsql {

namespace {

VariableDeclaration parse_variable(TokenCursor& cursor) {
    VariableDeclaration variable;
    const SourceRange begin = cursor.peek().at;
    variable.name = parse_variable_name(cursor);
    cursor.accept(Keyword::As);
    if (cursor.at(Keyword::Cursor))
        cursor.refuse_unsupported("A cursor variable", cursor.peek().at);
    variable.type = parse_type(cursor);
    if (cursor.accept(TokenKind::Equal)) variable.initial = parse_value(cursor);
    variable.at = cursor.since(begin);
    return variable;
}

bool at_table_variable(const TokenCursor& cursor) {
    return cursor.peek(1).keyword == Keyword::Table ||
           (cursor.peek(1).keyword == Keyword::As && cursor.peek(2).keyword == Keyword::Table);
}

StatementPtr parse_table_variable(TokenCursor& cursor) {
    auto declaration = std::make_unique<DeclareTable>();
    declaration->name = parse_variable_name(cursor);
    declaration->name_at = cursor.last();
    cursor.accept(Keyword::As);
    cursor.expect(Keyword::Table);
    declaration->definition = parse_table_definition(cursor);
    declaration->at = cursor.since(declaration->name_at);
    return declaration;
}

StatementPtr parse_plain_variables(TokenCursor& cursor) {
    auto declaration = std::make_unique<Declare>();
    const SourceRange begin = cursor.peek().at;
    declaration->variables.push_back(parse_variable(cursor));
    while (cursor.at(TokenKind::Comma) && cursor.peek(1).kind == TokenKind::Variable &&
           cursor.peek(2).keyword != Keyword::Table) {
        cursor.take();
        declaration->variables.push_back(parse_variable(cursor));
    }
    declaration->at = cursor.since(begin);
    return declaration;
}

} // namespace

StatementPtr parse_declare(TokenCursor& cursor) {
    const SourceRange begin = cursor.expect(Keyword::Declare).at;
    if (at_name(cursor)) return parse_declare_cursor(cursor, parse_name(cursor), begin);
    // Plain variables and table variables may be mixed: then they become a block of statements.
    std::vector<StatementPtr> parts;
    do
        parts.push_back(at_table_variable(cursor) ? parse_table_variable(cursor)
                                                  : parse_plain_variables(cursor));
    while (cursor.accept(TokenKind::Comma));
    if (parts.size() == 1) return std::move(parts.front());
    auto block = std::make_unique<Block>();
    block->statements = std::move(parts);
    return block;
}

} // namespace tsql
