// CREATE FUNCTION: scalar, inline table, and tables filled by statements.
#include "tsql/parser/grammar.h"

namespace tsql {

namespace {

void parse_block_body(TokenCursor& cursor, CreateFunction& function) {
    cursor.accept(Keyword::As);
    cursor.expect(Keyword::Begin);
    function.body = parse_statements(cursor);
    cursor.expect(Keyword::End);
}

void parse_inline_body(TokenCursor& cursor, CreateFunction& function) {
    cursor.accept(Keyword::As);
    cursor.expect(Keyword::Return);
    int open = 0;
    // The query may stand in parentheses, WITH and all.
    for (; cursor.at(TokenKind::LeftParenthesis) && !at_query(cursor); ++open) cursor.take();
    if (cursor.at(TokenKind::LeftParenthesis) && open == 0) {
        cursor.take();
        ++open;
    }
    std::vector<CommonTable> with;
    if (cursor.at(Keyword::With)) with = parse_with(cursor);
    function.query = parse_query(cursor);
    function.query->with = std::move(with);
    for (; open > 0; --open) cursor.expect(TokenKind::RightParenthesis);
}

} // namespace

StatementPtr parse_create_function(TokenCursor& cursor, DefinitionMode mode) {
    cursor.expect(Keyword::Function);
    auto function = std::make_unique<CreateFunction>();
    function->mode = mode;
    function->name = parse_object_name(cursor);
    cursor.expect(TokenKind::LeftParenthesis);
    function->parameters = parse_parameters(cursor);
    cursor.expect(TokenKind::RightParenthesis);
    cursor.expect(Keyword::Returns);
    if (cursor.at(TokenKind::Variable)) {
        function->type = FunctionKind::MultiTable;
        function->return_variable = parse_variable_name(cursor);
        cursor.expect(Keyword::Table);
        function->return_table = parse_table_definition(cursor);
    } else if (cursor.accept(Keyword::Table)) {
        function->type = FunctionKind::InlineTable;
    } else {
        function->return_type = parse_type(cursor);
    }
    skip_routine_options(cursor);
    if (function->type == FunctionKind::InlineTable)
        parse_inline_body(cursor, *function);
    else
        parse_block_body(cursor, *function);
    require_end_of_batch(cursor);
    return function;
}

} // namespace tsql
