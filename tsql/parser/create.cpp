// CREATE, and ALTER of what holds T-SQL: which object comes.
#include "tsql/parser/grammar.h"
#include "tsql/source/diagnostic.h"

namespace tsql {

namespace {

// CREATE, ALTER or CREATE OR ALTER.
DefinitionMode parse_mode(TokenCursor& cursor) {
    if (cursor.accept(Keyword::Alter)) return DefinitionMode::Alter;
    cursor.expect(Keyword::Create);
    if (!cursor.accept(Keyword::Or)) return DefinitionMode::Create;
    cursor.expect(Keyword::Alter);
    return DefinitionMode::CreateOrAlter;
}

bool at_index(const TokenCursor& cursor) {
    std::size_t ahead = 1;
    if (cursor.peek(ahead).keyword == Keyword::Unique) ++ahead;
    if (cursor.peek(ahead).keyword == Keyword::Clustered ||
        cursor.peek(ahead).keyword == Keyword::Nonclustered)
        ++ahead;
    return cursor.peek(ahead).keyword == Keyword::Index;
}

// A routine is a batch of its own: its text is kept as it stands.
void require_first(const TokenCursor& cursor, bool first, SourceRange begin) {
    if (first) return;
    throw Refusal(111, begin,
                  "'CREATE " + std::string(spelling(cursor.peek().keyword)) +
                      "' must be the first statement in a query batch.");
}

} // namespace

StatementPtr parse_create(TokenCursor& cursor) {
    if (cursor.at(Keyword::Create, Keyword::Table)) return parse_create_table(cursor);
    if (at_index(cursor)) return parse_create_index(cursor);
    const bool first = cursor.nothing_taken();
    const SourceRange begin = cursor.peek().at;
    const DefinitionMode mode = parse_mode(cursor);
    const Token& object = cursor.peek();
    switch (object.keyword) {
    case Keyword::View: require_first(cursor, first, begin); return parse_create_view(cursor, mode);
    case Keyword::Function:
        require_first(cursor, first, begin);
        return parse_create_function(cursor, mode);
    case Keyword::Proc:
    case Keyword::Procedure:
        require_first(cursor, first, begin);
        return parse_create_procedure(cursor, mode);
    case Keyword::Trigger:
        require_first(cursor, first, begin);
        return parse_create_trigger(cursor, mode);
    default:
        if (object.kind != TokenKind::Word) cursor.refuse_here();
        cursor.refuse_unsupported("CREATE " + cursor.upper_word(), begin.up_to(object.at));
    }
}

} // namespace tsql
