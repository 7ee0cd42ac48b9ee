// Keys, checks, defaults and references, of a column or of the table.
#include "tsql/parser/grammar.h"

namespace tsql {

namespace {

ReferentialAction parse_action(TokenCursor& cursor) {
    if (cursor.accept(Keyword::Cascade)) return ReferentialAction::Cascade;
    if (cursor.accept(Keyword::Set, Keyword::Null)) return ReferentialAction::SetNull;
    if (cursor.accept(Keyword::Set, Keyword::Default)) return ReferentialAction::SetDefault;
    cursor.expect(Keyword::No);
    cursor.expect(Keyword::Action);
    return ReferentialAction::NoAction;
}

ForeignKey parse_references(TokenCursor& cursor) {
    ForeignKey key;
    cursor.expect(Keyword::References);
    key.table = parse_object_name(cursor);
    if (cursor.at(TokenKind::LeftParenthesis)) key.columns = parse_name_list(cursor);
    while (true) {
        if (cursor.accept(Keyword::On, Keyword::Delete))
            key.on_delete = parse_action(cursor);
        else if (cursor.accept(Keyword::On, Keyword::Update))
            key.on_update = parse_action(cursor);
        else if (cursor.at(Keyword::Not, Keyword::For)) { // NOT FOR REPLICATION
            cursor.take();
            cursor.take();
            cursor.expect(Keyword::Replication);
        } else {
            return key;
        }
    }
}

void parse_key(TokenCursor& cursor, Constraint& constraint, bool of_column) {
    constraint.clustered = cursor.accept(Keyword::Clustered);
    if (!constraint.clustered) cursor.accept(Keyword::Nonclustered);
    if (!of_column) constraint.columns = parse_index_columns(cursor);
    skip_storage_options(cursor);
}

void parse_check(TokenCursor& cursor, Constraint& constraint) {
    constraint.kind = ConstraintKind::Check;
    cursor.expect(TokenKind::LeftParenthesis);
    constraint.expression = parse_condition(cursor);
    cursor.expect(TokenKind::RightParenthesis);
}

void parse_default(TokenCursor& cursor, Constraint& constraint, bool of_column) {
    constraint.kind = ConstraintKind::Default;
    constraint.expression = parse_value(cursor);
    if (of_column) {
        cursor.accept(Keyword::With, Keyword::Values);
        return;
    }
    cursor.expect(Keyword::For);
    constraint.default_for = parse_name(cursor);
    cursor.accept(Keyword::With, Keyword::Values);
}

void parse_foreign_key(TokenCursor& cursor, Constraint& constraint, bool of_column) {
    constraint.kind = ConstraintKind::ForeignKey;
    if (cursor.accept(Keyword::Foreign)) {
        cursor.expect(Keyword::Key);
        if (!of_column || cursor.at(TokenKind::LeftParenthesis))
            for (Name& column : parse_name_list(cursor))
                constraint.columns.push_back({std::move(column), false});
    }
    constraint.references = parse_references(cursor);
}

// Skips ( … ) with whatever stands inside.
void skip_parenthesised(TokenCursor& cursor) {
    cursor.expect(TokenKind::LeftParenthesis);
    for (int open = 1; open > 0;) {
        if (cursor.at_end()) cursor.refuse_here();
        const TokenKind kind = cursor.take().kind;
        open += kind == TokenKind::LeftParenthesis ? 1 : 0;
        open -= kind == TokenKind::RightParenthesis ? 1 : 0;
    }
}

} // namespace

bool at_constraint(const TokenCursor& cursor) {
    switch (cursor.peek().keyword) {
    case Keyword::Constraint:
    case Keyword::Primary:
    case Keyword::Unique:
    case Keyword::Check:
    case Keyword::Default:
    case Keyword::Foreign:
    case Keyword::References: return true;
    default: return false;
    }
}

Constraint parse_constraint(TokenCursor& cursor, bool of_column) {
    Constraint constraint;
    const SourceRange begin = cursor.peek().at;
    if (cursor.accept(Keyword::Constraint)) constraint.name = parse_name(cursor);
    if (cursor.accept(Keyword::Primary)) {
        cursor.expect(Keyword::Key);
        constraint.kind = ConstraintKind::PrimaryKey;
        parse_key(cursor, constraint, of_column);
    } else if (cursor.accept(Keyword::Unique)) {
        constraint.kind = ConstraintKind::Unique;
        parse_key(cursor, constraint, of_column);
    } else if (cursor.accept(Keyword::Check)) {
        parse_check(cursor, constraint);
    } else if (cursor.accept(Keyword::Default)) {
        parse_default(cursor, constraint, of_column);
    } else if (cursor.at(Keyword::Foreign) || (of_column && cursor.at(Keyword::References))) {
        parse_foreign_key(cursor, constraint, of_column);
    } else {
        cursor.refuse_here();
    }
    constraint.at = cursor.since(begin);
    return constraint;
}

std::vector<IndexColumn> parse_index_columns(TokenCursor& cursor) {
    std::vector<IndexColumn> columns;
    cursor.expect(TokenKind::LeftParenthesis);
    do {
        IndexColumn column;
        column.name = parse_name(cursor);
        column.descending = cursor.accept(Keyword::Desc);
        if (!column.descending) cursor.accept(Keyword::Asc);
        columns.push_back(std::move(column));
    } while (cursor.accept(TokenKind::Comma));
    cursor.expect(TokenKind::RightParenthesis);
    return columns;
}

void skip_storage_options(TokenCursor& cursor) {
    while (true) {
        const Token& next = cursor.peek(1);
        const bool names_filegroup =
            cursor.at(Keyword::On) &&
            (next.kind == TokenKind::QuotedName || next.keyword == Keyword::Primary);
        if (cursor.at(Keyword::With) && cursor.peek(1).kind == TokenKind::LeftParenthesis) {
            cursor.take();
            skip_parenthesised(cursor);
        } else if (cursor.at(Keyword::With, Keyword::Fillfactor)) {
            cursor.take();
            cursor.take();
            cursor.expect(TokenKind::Equal);
            cursor.expect(TokenKind::Integer);
        } else if (names_filegroup || cursor.at_word("TEXTIMAGE_ON")) {
            cursor.take();
            cursor.take();
        } else {
            return;
        }
    }
}

} // namespace tsql
