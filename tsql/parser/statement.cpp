// Which statement begins here; statements one after another.
#include "tsql/parser/grammar.h"
#include "tsql/source/diagnostic.h"

namespace tsql {

namespace {

// Statements of T-SQL that this front end knows and does not take.
constexpr Keyword refused[] = {
    Keyword::Merge,      Keyword::Use,         Keyword::Goto,     Keyword::Waitfor,
    Keyword::Grant,      Keyword::Revoke,      Keyword::Deny,     Keyword::Backup,
    Keyword::Restore,    Keyword::Dbcc,        Keyword::Kill,     Keyword::Shutdown,
    Keyword::Checkpoint, Keyword::Bulk,        Keyword::Readtext, Keyword::Writetext,
    Keyword::Updatetext, Keyword::Reconfigure, Keyword::Setuser,  Keyword::Revert,
};

StatementPtr parse_after_with(TokenCursor& cursor) {
    std::vector<CommonTable> with = parse_with(cursor);
    switch (cursor.peek().keyword) {
    case Keyword::Insert: return parse_insert(cursor, std::move(with));
    case Keyword::Update: return parse_update(cursor, std::move(with));
    case Keyword::Delete: return parse_delete(cursor, std::move(with));
    case Keyword::Merge: cursor.refuse_unsupported("MERGE", cursor.peek().at);
    default: return parse_query_statement(cursor, std::move(with));
    }
}

template <typename Class> StatementPtr parse_single_word(TokenCursor& cursor) {
    cursor.take();
    return std::make_unique<Class>();
}

StatementPtr parse_alter(TokenCursor& cursor) {
    switch (cursor.peek(1).keyword) {
    case Keyword::Table: return parse_alter_table(cursor);
    case Keyword::View:
    case Keyword::Function:
    case Keyword::Proc:
    case Keyword::Procedure:
    case Keyword::Trigger: return parse_create(cursor);
    default: {
        const Token& object = cursor.peek(1);
        if (object.kind != TokenKind::Word) cursor.refuse(object);
        cursor.refuse_unsupported("ALTER " + std::string(object.at.text(cursor.batch())),
                                  cursor.peek().at.up_to(object.at));
    }
    }
}

// Words that begin a statement only where a statement may begin.
StatementPtr parse_soft_start(TokenCursor& cursor) {
    const Keyword next = cursor.peek(1).keyword;
    if (cursor.at(Keyword::Throw)) return parse_throw(cursor);
    if ((cursor.at(Keyword::Enable) || cursor.at(Keyword::Disable)) && next == Keyword::Trigger)
        return parse_switch_trigger(cursor);
    if (cursor.at(TokenKind::Word) && cursor.peek(1).kind == TokenKind::Colon)
        cursor.refuse_unsupported("A label", cursor.peek().at);
    if (cursor.nothing_taken() && at_name(cursor)) return parse_call_without_execute(cursor);
    cursor.refuse_here();
}

StatementPtr parse_flow(TokenCursor& cursor) {
    switch (cursor.peek().keyword) {
    case Keyword::Begin: return parse_begin(cursor);
    case Keyword::If: return parse_if(cursor);
    case Keyword::While: return parse_while(cursor);
    case Keyword::Break: return parse_single_word<Break>(cursor);
    case Keyword::Continue: return parse_single_word<Continue>(cursor);
    case Keyword::Return: return parse_return(cursor);
    case Keyword::Print: return parse_print(cursor);
    case Keyword::Raiserror: return parse_raise_error(cursor);
    case Keyword::Declare: return parse_declare(cursor);
    case Keyword::Set: return parse_set(cursor);
    case Keyword::Exec:
    case Keyword::Execute: return parse_execute(cursor);
    case Keyword::Commit: return parse_commit(cursor);
    case Keyword::Rollback: return parse_rollback(cursor);
    case Keyword::Save: return parse_save(cursor);
    case Keyword::Open: return parse_open_cursor(cursor);
    case Keyword::Fetch: return parse_fetch(cursor);
    case Keyword::Close: return parse_close_cursor(cursor);
    case Keyword::Deallocate: return parse_deallocate_cursor(cursor);
    default: return parse_soft_start(cursor);
    }
}

StatementPtr parse_by_first_word(TokenCursor& cursor) {
    const Token& first = cursor.peek();
    if (std::find(std::begin(refused), std::end(refused), first.keyword) != std::end(refused))
        cursor.refuse_unsupported(spelling(first.keyword), first.at);
    switch (first.keyword) {
    case Keyword::Select: return parse_query_statement(cursor, {});
    case Keyword::With: return parse_after_with(cursor);
    case Keyword::Insert: return parse_insert(cursor, {});
    case Keyword::Update: return parse_update(cursor, {});
    case Keyword::Delete: return parse_delete(cursor, {});
    case Keyword::Truncate: return parse_truncate(cursor);
    case Keyword::Create: return parse_create(cursor);
    case Keyword::Alter: return parse_alter(cursor);
    case Keyword::Drop: return parse_drop(cursor);
    default: return parse_flow(cursor);
    }
}

} // namespace

StatementPtr parse_statement(TokenCursor& cursor) {
    const TokenCursor::Nesting nesting(cursor);
    const SourceRange begin = cursor.peek().at;
    StatementPtr statement = cursor.at(TokenKind::LeftParenthesis) && at_query(cursor)
                                 ? parse_query_statement(cursor, {})
                                 : parse_by_first_word(cursor);
    statement->at = cursor.since(begin);
    while (cursor.accept(TokenKind::Semicolon)) {
    }
    return statement;
}

std::vector<StatementPtr> parse_statements(TokenCursor& cursor) {
    std::vector<StatementPtr> statements;
    while (cursor.accept(TokenKind::Semicolon)) {
    }
    while (!cursor.at_end() && !cursor.at(Keyword::End))
        statements.push_back(parse_statement(cursor));
    return statements;
}

} // namespace tsql
