// SELECT: its list with all forms of an alias, TOP, INTO, WHERE, GROUP BY, HAVING.
#include "tsql/parser/grammar.h"

namespace tsql {

namespace {

// What may stand as an alias: a name, or a text in quotes.
bool at_alias(const TokenCursor& cursor) {
    return at_name(cursor) || cursor.at(TokenKind::Text) || cursor.at(TokenKind::NationalText);
}

Name parse_alias(TokenCursor& cursor) {
    if (!at_alias(cursor)) cursor.refuse_here();
    const Token& token = cursor.take();
    return {cursor.value(token), token.at, token.kind != TokenKind::Word};
}

std::optional<AssignOperator> assign_operator(TokenKind kind) {
    switch (kind) {
    case TokenKind::Equal: return AssignOperator::Assign;
    case TokenKind::PlusEqual: return AssignOperator::Add;
    case TokenKind::MinusEqual: return AssignOperator::Subtract;
    case TokenKind::StarEqual: return AssignOperator::Multiply;
    case TokenKind::SlashEqual: return AssignOperator::Divide;
    case TokenKind::PercentEqual: return AssignOperator::Modulo;
    case TokenKind::AmpersandEqual: return AssignOperator::BitAnd;
    case TokenKind::BarEqual: return AssignOperator::BitOr;
    case TokenKind::CaretEqual: return AssignOperator::BitXor;
    default: return std::nullopt;
    }
}

// `*`, or `T.*` with T of up to three parts.
bool at_star(const TokenCursor& cursor) {
    if (cursor.at(TokenKind::Star)) return true;
    for (std::size_t ahead = 0; ahead < 6; ahead += 2) {
        const TokenKind kind = cursor.peek(ahead).kind;
        if (kind != TokenKind::Word && kind != TokenKind::QuotedName) return false;
        if (cursor.peek(ahead + 1).kind != TokenKind::Dot) return false;
        if (cursor.peek(ahead + 2).kind == TokenKind::Star) return true;
    }
    return false;
}

void parse_star(TokenCursor& cursor, SelectItem& item) {
    item.kind = SelectItemKind::Star;
    while (!cursor.at(TokenKind::Star)) {
        item.star_of.parts.push_back(parse_name(cursor));
        item.star_of.at = cursor.since(item.star_of.parts.front().at);
        cursor.expect(TokenKind::Dot);
    }
    cursor.take();
}

void parse_grouping(TokenCursor& cursor, Select& select) {
    if (!cursor.accept(Keyword::Group, Keyword::By)) return;
    if (cursor.at(Keyword::All)) cursor.refuse_unsupported("GROUP BY ALL", cursor.peek().at);
    if (cursor.at(Keyword::Grouping) && cursor.peek(1).keyword == Keyword::Sets)
        cursor.refuse_unsupported("GROUPING SETS", cursor.peek().at);
    const bool listed = cursor.peek(1).kind == TokenKind::LeftParenthesis;
    if (listed && (cursor.at(Keyword::Rollup) || cursor.at(Keyword::Cube))) {
        select.grouping =
            cursor.take().keyword == Keyword::Rollup ? GroupingKind::Rollup : GroupingKind::Cube;
        cursor.take();
        select.group_by = parse_values(cursor);
        cursor.expect(TokenKind::RightParenthesis);
        if (cursor.at(TokenKind::Comma))
            cursor.refuse_unsupported("ROLLUP or CUBE beside other groups", cursor.peek().at);
        return;
    }
    select.group_by = parse_values(cursor);
    if (cursor.accept(Keyword::With, Keyword::Rollup))
        select.grouping = GroupingKind::Rollup;
    else if (cursor.accept(Keyword::With, Keyword::Cube))
        select.grouping = GroupingKind::Cube;
}

} // namespace

std::optional<AssignOperator> accept_assign(TokenCursor& cursor) {
    const std::optional<AssignOperator> op = assign_operator(cursor.peek().kind);
    if (op) cursor.take();
    return op;
}

SelectItem parse_select_item(TokenCursor& cursor) {
    SelectItem item;
    const SourceRange begin = cursor.peek().at;
    if (at_star(cursor)) {
        parse_star(cursor, item);
    } else if (cursor.at(TokenKind::Variable) && assign_operator(cursor.peek(1).kind)) {
        item.kind = SelectItemKind::Assignment;
        item.variable = parse_variable_name(cursor);
        item.assign = *accept_assign(cursor);
        item.expression = parse_value(cursor);
    } else if (at_alias(cursor) && cursor.peek(1).kind == TokenKind::Equal) {
        item.alias = parse_alias(cursor);
        cursor.take();
        item.expression = parse_value(cursor);
    } else {
        item.expression = parse_value(cursor);
        if (cursor.accept(Keyword::As) || at_alias(cursor)) item.alias = parse_alias(cursor);
    }
    item.at = cursor.since(begin);
    return item;
}

std::optional<Top> accept_top(TokenCursor& cursor) {
    if (!cursor.at(Keyword::Top)) return std::nullopt;
    Top top;
    const SourceRange begin = cursor.take().at;
    if (cursor.accept(TokenKind::LeftParenthesis)) {
        top.count = parse_value(cursor);
        cursor.expect(TokenKind::RightParenthesis);
    } else {
        top.count = cursor.at(TokenKind::Variable) ? parse_primary(cursor) : parse_literal(cursor);
    }
    top.percent = cursor.accept(Keyword::Percent);
    top.with_ties = cursor.accept(Keyword::With, Keyword::Ties);
    top.at = cursor.since(begin);
    return top;
}

std::unique_ptr<Select> parse_select(TokenCursor& cursor) {
    auto select = std::make_unique<Select>();
    const SourceRange begin = cursor.expect(Keyword::Select).at;
    select->distinct = cursor.accept(Keyword::Distinct);
    if (!select->distinct) cursor.accept(Keyword::All);
    select->top = accept_top(cursor);
    do select->items.push_back(parse_select_item(cursor));
    while (cursor.accept(TokenKind::Comma));
    if (cursor.accept(Keyword::Into)) select->into = parse_object_name(cursor);
    if (cursor.accept(Keyword::From)) select->from = parse_from(cursor);
    if (cursor.accept(Keyword::Where)) select->where = parse_condition(cursor);
    parse_grouping(cursor, *select);
    if (cursor.accept(Keyword::Having)) select->having = parse_condition(cursor);
    select->at = cursor.since(begin);
    return select;
}

} // namespace tsql
