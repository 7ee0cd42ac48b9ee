// DROP of tables, views, routines, triggers and indexes.
#include "tsql/parser/grammar.h"

namespace tsql {

namespace {

bool accept_if_exists(TokenCursor& cursor) {
    if (!cursor.accept(Keyword::If)) return false;
    cursor.expect(Keyword::Exists);
    return true;
}

// DROP INDEX name ON table, or the older DROP INDEX table.name.
DropIndex::Target parse_index_target(TokenCursor& cursor) {
    DropIndex::Target target;
    ObjectName name = parse_object_name(cursor);
    target.index = std::move(name.parts.back());
    name.parts.pop_back();
    if (cursor.accept(Keyword::On)) {
        if (!name.parts.empty()) cursor.refuse_here();
        target.table = parse_object_name(cursor);
    } else {
        if (name.parts.empty()) cursor.refuse_here();
        target.table = std::move(name);
    }
    return target;
}

StatementPtr parse_drop_index(TokenCursor& cursor) {
    auto drop = std::make_unique<DropIndex>();
    drop->if_exists = accept_if_exists(cursor);
    do drop->targets.push_back(parse_index_target(cursor));
    while (cursor.accept(TokenKind::Comma));
    return drop;
}

} // namespace

StatementPtr parse_drop(TokenCursor& cursor) {
    const SourceRange begin = cursor.expect(Keyword::Drop).at;
    if (cursor.accept(Keyword::Index)) return parse_drop_index(cursor);
    auto drop = std::make_unique<Drop>();
    switch (cursor.peek().keyword) {
    case Keyword::Table: drop->object = ObjectKind::Table; break;
    case Keyword::View: drop->object = ObjectKind::View; break;
    case Keyword::Function: drop->object = ObjectKind::Function; break;
    case Keyword::Proc:
    case Keyword::Procedure: drop->object = ObjectKind::Procedure; break;
    case Keyword::Trigger: drop->object = ObjectKind::Trigger; break;
    default:
        if (!cursor.at(TokenKind::Word)) cursor.refuse_here();
        cursor.refuse_unsupported("DROP " + cursor.upper_word(), begin.up_to(cursor.peek().at));
    }
    cursor.take();
    drop->if_exists = accept_if_exists(cursor);
    do drop->names.push_back(parse_object_name(cursor));
    while (cursor.accept(TokenKind::Comma));
    return drop;
}

} // namespace tsql
