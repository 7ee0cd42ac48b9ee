// ALTER TABLE: columns and constraints added, changed and dropped, triggers switched.
#include "tsql/parser/grammar.h"

namespace tsql {

namespace {

std::vector<Name> parse_names(TokenCursor& cursor) {
    std::vector<Name> names;
    do names.push_back(parse_name(cursor));
    while (cursor.accept(TokenKind::Comma));
    return names;
}

void parse_names_or_all(TokenCursor& cursor, AlterTable& alter) {
    alter.all = cursor.accept(Keyword::All);
    if (!alter.all) alter.names = parse_names(cursor);
}

void parse_drop_part(TokenCursor& cursor, AlterTable& alter) {
    if (cursor.accept(Keyword::Column)) {
        alter.action = AlterTableAction::DropColumn;
    } else {
        cursor.accept(Keyword::Constraint); // the word may be missing
        alter.action = AlterTableAction::DropConstraint;
    }
    if (cursor.accept(Keyword::If)) {
        cursor.expect(Keyword::Exists);
        alter.if_exists = true;
    }
    alter.names = parse_names(cursor);
    if (cursor.at(Keyword::Column) || cursor.at(Keyword::Constraint))
        cursor.refuse_unsupported("DROP of columns and constraints in one statement",
                                  cursor.peek().at);
}

void parse_action(TokenCursor& cursor, AlterTable& alter) {
    // WITH CHECK and WITH NOCHECK say whether old rows are tried against the constraint.
    if (!cursor.accept(Keyword::With, Keyword::Check))
        cursor.accept(Keyword::With, Keyword::Nocheck);
    if (cursor.accept(Keyword::Add)) {
        alter.action = AlterTableAction::Add;
        do parse_table_element(cursor, alter.add);
        while (cursor.accept(TokenKind::Comma));
    } else if (cursor.accept(Keyword::Alter)) {
        cursor.expect(Keyword::Column);
        alter.action = AlterTableAction::AlterColumn;
        alter.add.columns.push_back(parse_column(cursor));
    } else if (cursor.accept(Keyword::Drop)) {
        parse_drop_part(cursor, alter);
    } else if (cursor.at(Keyword::Check) || cursor.at(Keyword::Nocheck)) {
        alter.action = cursor.take().keyword == Keyword::Check
                           ? AlterTableAction::CheckConstraint
                           : AlterTableAction::NoCheckConstraint;
        cursor.expect(Keyword::Constraint);
        parse_names_or_all(cursor, alter);
    } else if (cursor.at(Keyword::Enable) || cursor.at(Keyword::Disable)) {
        alter.action = cursor.take().keyword == Keyword::Enable ? AlterTableAction::EnableTrigger
                                                                : AlterTableAction::DisableTrigger;
        cursor.expect(Keyword::Trigger);
        parse_names_or_all(cursor, alter);
    } else {
        cursor.refuse_here();
    }
}

} // namespace

StatementPtr parse_alter_table(TokenCursor& cursor) {
    cursor.expect(Keyword::Alter);
    cursor.expect(Keyword::Table);
    auto alter = std::make_unique<AlterTable>();
    alter->name = parse_object_name(cursor);
    parse_action(cursor, *alter);
    return alter;
}

StatementPtr parse_switch_trigger(TokenCursor& cursor) {
    auto alter = std::make_unique<AlterTable>();
    alter->action = cursor.take().keyword == Keyword::Enable ? AlterTableAction::EnableTrigger
                                                             : AlterTableAction::DisableTrigger;
    cursor.expect(Keyword::Trigger);
    parse_names_or_all(cursor, *alter);
    cursor.expect(Keyword::On);
    alter->name = parse_object_name(cursor);
    return alter;
}

} // namespace tsql
