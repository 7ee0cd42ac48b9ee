// CREATE TRIGGER.
#include "tsql/parser/grammar.h"

namespace tsql {

namespace {

void parse_events(TokenCursor& cursor, CreateTrigger& trigger) {
    do {
        if (cursor.accept(Keyword::Insert))
            trigger.on_insert = true;
        else if (cursor.accept(Keyword::Update))
            trigger.on_update = true;
        else if (cursor.accept(Keyword::Delete))
            trigger.on_delete = true;
        else
            cursor.refuse_here();
    } while (cursor.accept(TokenKind::Comma));
}

} // namespace

StatementPtr parse_create_trigger(TokenCursor& cursor, DefinitionMode mode) {
    cursor.expect(Keyword::Trigger);
    auto trigger = std::make_unique<CreateTrigger>();
    trigger->mode = mode;
    trigger->name = parse_object_name(cursor);
    cursor.expect(Keyword::On);
    if (cursor.at(Keyword::Database) || (cursor.at(Keyword::All) && !at_name(cursor)))
        cursor.refuse_unsupported("A trigger on the database or server", cursor.peek().at);
    trigger->table = parse_object_name(cursor);
    skip_routine_options(cursor);
    if (cursor.accept(Keyword::Instead)) {
        cursor.expect(Keyword::Of);
        trigger->instead_of = true;
    } else if (!cursor.accept(Keyword::For)) {
        cursor.expect(Keyword::After);
    }
    parse_events(cursor, *trigger);
    if (cursor.accept(Keyword::Not, Keyword::For)) cursor.expect(Keyword::Replication);
    cursor.expect(Keyword::As);
    trigger->body = parse_body_to_end(cursor);
    return trigger;
}

} // namespace tsql
