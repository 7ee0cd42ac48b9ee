// CREATE TABLE and what stands between its parentheses.
#include "tsql/parser/grammar.h"

namespace tsql {

namespace {

Identity parse_identity(TokenCursor& cursor) {
    Identity identity;
    if (!cursor.accept(TokenKind::LeftParenthesis)) return identity;
    identity.seed = parse_signed_integer(cursor);
    cursor.expect(TokenKind::Comma);
    identity.increment = parse_signed_integer(cursor);
    cursor.expect(TokenKind::RightParenthesis);
    return identity;
}

// One attribute of a column; false when none follows.
bool accept_attribute(TokenCursor& cursor, ColumnDefinition& column) {
    if (cursor.accept(Keyword::Not, Keyword::Null)) {
        column.nullable = false;
    } else if (cursor.accept(Keyword::Null)) {
        column.nullable = true;
    } else if (cursor.accept(Keyword::Identity)) {
        column.identity = parse_identity(cursor);
    } else if (cursor.accept(Keyword::Collate)) {
        column.collation = parse_name(cursor);
    } else if (cursor.accept(Keyword::Rowguidcol)) {
        column.rowguidcol = true;
    } else if (at_constraint(cursor)) {
        column.constraints.push_back(parse_constraint(cursor, true));
    } else {
        return false;
    }
    return true;
}

void parse_computed(TokenCursor& cursor, ColumnDefinition& column) {
    column.computed = parse_value(cursor);
    column.persisted = cursor.accept(Keyword::Persisted);
}

} // namespace

ColumnDefinition parse_column(TokenCursor& cursor) {
    ColumnDefinition column;
    column.name = parse_name(cursor);
    if (cursor.accept(Keyword::As))
        parse_computed(cursor, column);
    else
        column.type = parse_type(cursor);
    while (accept_attribute(cursor, column)) {
    }
    column.at = cursor.since(column.name.at);
    return column;
}

void parse_table_element(TokenCursor& cursor, TableDefinition& definition) {
    if (at_constraint(cursor))
        definition.constraints.push_back(parse_constraint(cursor, false));
    else
        definition.columns.push_back(parse_column(cursor));
}

TableDefinition parse_table_definition(TokenCursor& cursor) {
    TableDefinition definition;
    cursor.expect(TokenKind::LeftParenthesis);
    do {
        if (cursor.at(TokenKind::RightParenthesis) && !definition.columns.empty()) break;
        parse_table_element(cursor, definition);
    } while (cursor.accept(TokenKind::Comma));
    cursor.expect(TokenKind::RightParenthesis);
    return definition;
}

StatementPtr parse_create_table(TokenCursor& cursor) {
    cursor.expect(Keyword::Create);
    cursor.expect(Keyword::Table);
    auto table = std::make_unique<CreateTable>();
    table->name = parse_object_name(cursor);
    table->definition = parse_table_definition(cursor);
    skip_storage_options(cursor);
    return table;
}

} // namespace tsql
