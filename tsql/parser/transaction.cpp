// BEGIN, COMMIT, ROLLBACK and SAVE TRANSACTION.
#include "tsql/parser/grammar.h"

namespace tsql {

namespace {

bool accept_transaction_word(TokenCursor& cursor) {
    return cursor.accept(Keyword::Tran) || cursor.accept(Keyword::Transaction);
}

// The name of a transaction or savepoint, plain or held by a variable.
Name accept_transaction_name(TokenCursor& cursor) {
    if (cursor.at(TokenKind::Variable)) {
        const Token& token = cursor.take();
        return {cursor.value(token), token.at, false};
    }
    return at_name(cursor) ? parse_name(cursor) : Name{};
}

template <typename Class> StatementPtr parse_end(TokenCursor& cursor) {
    cursor.take();
    auto statement = std::make_unique<Class>();
    if (accept_transaction_word(cursor))
        statement->name = accept_transaction_name(cursor);
    else
        cursor.accept(Keyword::Work);
    return statement;
}

} // namespace

StatementPtr parse_begin_transaction(TokenCursor& cursor) {
    cursor.expect(Keyword::Begin);
    cursor.take();
    auto statement = std::make_unique<BeginTransaction>();
    statement->name = accept_transaction_name(cursor);
    if (!statement->name.empty() && cursor.at(Keyword::With) &&
        cursor.peek(1).keyword == Keyword::None)
        cursor.refuse_unsupported("A marked transaction", cursor.peek().at);
    return statement;
}

StatementPtr parse_commit(TokenCursor& cursor) {
    return parse_end<Commit>(cursor);
}

StatementPtr parse_rollback(TokenCursor& cursor) {
    return parse_end<Rollback>(cursor);
}

StatementPtr parse_save(TokenCursor& cursor) {
    cursor.expect(Keyword::Save);
    if (!accept_transaction_word(cursor)) cursor.refuse_here();
    auto statement = std::make_unique<SaveTransaction>();
    statement->name = accept_transaction_name(cursor);
    if (statement->name.empty()) cursor.refuse_here();
    return statement;
}

} // namespace tsql
