// CREATE PROCEDURE.
#include "tsql/parser/grammar.h"

namespace tsql {

StatementPtr parse_create_procedure(TokenCursor& cursor, DefinitionMode mode) {
    cursor.take(); // PROC or PROCEDURE
    auto procedure = std::make_unique<CreateProcedure>();
    procedure->mode = mode;
    procedure->name = parse_object_name(cursor);
    const bool parenthesised = cursor.accept(TokenKind::LeftParenthesis);
    procedure->parameters = parse_parameters(cursor);
    if (parenthesised) cursor.expect(TokenKind::RightParenthesis);
    skip_routine_options(cursor);
    if (cursor.accept(Keyword::For)) cursor.expect(Keyword::Replication);
    cursor.expect(Keyword::As);
    procedure->body = parse_body_to_end(cursor);
    return procedure;
}

} // namespace tsql
