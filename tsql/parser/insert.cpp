// INSERT: VALUES, SELECT, EXEC and DEFAULT VALUES.
#include "tsql/parser/grammar.h"

namespace tsql {

namespace {

// Columns may be qualified by the table; the qualifier says nothing new.
std::vector<Name> parse_target_columns(TokenCursor& cursor) {
    std::vector<Name> columns;
    cursor.expect(TokenKind::LeftParenthesis);
    do columns.push_back(parse_object_name(cursor).parts.back());
    while (cursor.accept(TokenKind::Comma));
    cursor.expect(TokenKind::RightParenthesis);
    return columns;
}

void parse_source(TokenCursor& cursor, Insert& insert) {
    if (cursor.accept(Keyword::Default, Keyword::Values)) {
        insert.source = InsertSource::DefaultValues;
    } else if (cursor.accept(Keyword::Values)) {
        do insert.rows.push_back(parse_value_row(cursor));
        while (cursor.accept(TokenKind::Comma));
    } else if (cursor.at(Keyword::Exec) || cursor.at(Keyword::Execute)) {
        insert.source = InsertSource::Execute;
        insert.execute = parse_execute(cursor);
    } else if (at_query(cursor)) {
        insert.source = InsertSource::Query;
        insert.query = parse_query(cursor);
    } else {
        cursor.refuse_here();
    }
}

} // namespace

ObjectName parse_dml_target(TokenCursor& cursor) {
    ObjectName target;
    if (cursor.at(TokenKind::Variable)) {
        const Token& token = cursor.take();
        target.parts.push_back({cursor.value(token), token.at, false});
        target.at = token.at;
    } else {
        target = parse_object_name(cursor);
    }
    if (cursor.at(Keyword::With)) accept_hints(cursor);
    return target;
}

ValueRow parse_value_row(TokenCursor& cursor) {
    cursor.expect(TokenKind::LeftParenthesis);
    ValueRow row = parse_arguments(cursor, false);
    if (row.empty()) cursor.refuse_here();
    cursor.expect(TokenKind::RightParenthesis);
    return row;
}

StatementPtr parse_insert(TokenCursor& cursor, std::vector<CommonTable> with) {
    cursor.expect(Keyword::Insert);
    auto insert = std::make_unique<Insert>();
    insert->with = std::move(with);
    insert->top = accept_top(cursor);
    cursor.accept(Keyword::Into);
    insert->target = parse_dml_target(cursor);
    if (cursor.at(TokenKind::LeftParenthesis) && !at_query(cursor))
        insert->columns = parse_target_columns(cursor);
    insert->output = accept_output(cursor);
    parse_source(cursor, *insert);
    return insert;
}

} // namespace tsql
