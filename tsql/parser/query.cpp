// Queries: set operations by precedence, common table expressions, ORDER BY, OFFSET and FETCH.
#include "tsql/parser/grammar.h"

#include <charconv>

namespace tsql {

namespace {

QueryBodyPtr parse_body(TokenCursor& cursor);

QueryBodyPtr parse_body_part(TokenCursor& cursor) {
    const TokenCursor::Nesting nesting(cursor);
    if (!cursor.at(TokenKind::LeftParenthesis)) return parse_select(cursor);
    const SourceRange begin = cursor.take().at;
    QueryBodyPtr body = parse_body(cursor);
    cursor.expect(TokenKind::RightParenthesis);
    body->at = cursor.since(begin);
    return body;
}

// Appends a branch: to the operation itself when it is of the same kind, else around it.
QueryBodyPtr join_bodies(TokenCursor& cursor, QueryBodyPtr left, SetOperator op, bool left_is_chain,
                         QueryBodyPtr right) {
    const SourceRange at = left->at.up_to(right->at);
    if (left_is_chain && as<SetOperation>(*left).op == op) {
        as<SetOperation>(*left).branches.push_back(std::move(right));
        left->at = at;
        return left;
    }
    cursor.grow_chain();
    auto operation = std::make_unique<SetOperation>();
    operation->op = op;
    operation->branches.push_back(std::move(left));
    operation->branches.push_back(std::move(right));
    operation->at = at;
    return operation;
}

QueryBodyPtr parse_intersections(TokenCursor& cursor) {
    QueryBodyPtr left = parse_body_part(cursor);
    bool chain = false;
    while (cursor.accept(Keyword::Intersect)) {
        left = join_bodies(cursor, std::move(left), SetOperator::Intersect, chain,
                           parse_body_part(cursor));
        chain = true;
    }
    return left;
}

QueryBodyPtr parse_body(TokenCursor& cursor) {
    QueryBodyPtr left = parse_intersections(cursor);
    bool chain = false; // a set operation in parentheses stays a branch of its own
    while (cursor.at(Keyword::Union) || cursor.at(Keyword::Except)) {
        SetOperator op = SetOperator::Except;
        if (cursor.take().keyword == Keyword::Union)
            op = cursor.accept(Keyword::All) ? SetOperator::UnionAll : SetOperator::Union;
        left = join_bodies(cursor, std::move(left), op, chain, parse_intersections(cursor));
        chain = true;
    }
    return left;
}

void expect_row_word(TokenCursor& cursor) {
    if (!cursor.accept(Keyword::Rows)) cursor.expect(Keyword::Row);
}

void parse_page(TokenCursor& cursor, Query& query) {
    if (!cursor.accept(Keyword::Offset)) return;
    query.offset = parse_value(cursor);
    expect_row_word(cursor);
    if (!cursor.accept(Keyword::Fetch)) return;
    if (!cursor.accept(Keyword::Next)) cursor.expect(Keyword::First);
    query.fetch = parse_value(cursor);
    expect_row_word(cursor);
    cursor.expect(Keyword::Only);
}

// OPTION (…): MAXRECURSION bounds a recursive query, FORCE ORDER keeps the order of the joins as it
// is written; other hints are for the server's planner.
void parse_options(TokenCursor& cursor, Query& query) {
    if (!cursor.accept(Keyword::Option)) return;
    cursor.expect(TokenKind::LeftParenthesis);
    while (!cursor.at(TokenKind::RightParenthesis)) {
        if (cursor.accept(Keyword::Maxrecursion)) {
            query.max_recursion =
                static_cast<int>(std::min<std::int64_t>(parse_signed_integer(cursor), 32767));
        } else if (cursor.at_word("FORCE")) {
            cursor.take();
            cursor.expect(Keyword::Order);
            query.force_order = true;
        } else if (cursor.at(TokenKind::Word) || cursor.at(TokenKind::Integer) ||
                   cursor.at(TokenKind::Comma)) {
            cursor.take();
        } else {
            cursor.refuse_here();
        }
    }
    cursor.take();
}

CommonTable parse_common_table(TokenCursor& cursor) {
    CommonTable table;
    table.name = parse_name(cursor);
    if (cursor.at(TokenKind::LeftParenthesis)) table.columns = parse_name_list(cursor);
    cursor.expect(Keyword::As);
    table.query = parse_subquery(cursor);
    table.at = cursor.since(table.name.at);
    return table;
}

} // namespace

bool at_query(const TokenCursor& cursor) {
    std::size_t ahead = 0;
    while (cursor.peek(ahead).kind == TokenKind::LeftParenthesis) ++ahead;
    return cursor.peek(ahead).keyword == Keyword::Select;
}

std::vector<OrderItem> parse_order_items(TokenCursor& cursor) {
    std::vector<OrderItem> items;
    do {
        OrderItem item;
        item.expression = parse_value(cursor);
        item.descending = cursor.accept(Keyword::Desc);
        if (!item.descending) cursor.accept(Keyword::Asc);
        items.push_back(std::move(item));
    } while (cursor.accept(TokenKind::Comma));
    return items;
}

std::vector<CommonTable> parse_with(TokenCursor& cursor) {
    cursor.expect(Keyword::With);
    std::vector<CommonTable> tables;
    do tables.push_back(parse_common_table(cursor));
    while (cursor.accept(TokenKind::Comma));
    return tables;
}

std::unique_ptr<Query> parse_query(TokenCursor& cursor) {
    const TokenCursor::Nesting nesting(cursor);
    const SourceRange begin = cursor.peek().at;
    auto query = std::make_unique<Query>();
    query->body = parse_body(cursor);
    if (cursor.at(Keyword::Order, Keyword::By)) {
        query->order_at = cursor.take().at;
        cursor.take();
        query->order = parse_order_items(cursor);
        parse_page(cursor, *query);
    }
    if (cursor.at(Keyword::For) && (cursor.peek(1).kind == TokenKind::Word) &&
        cursor.peek(1).keyword == Keyword::None)
        cursor.refuse_unsupported("FOR XML or FOR JSON", cursor.peek().at);
    parse_options(cursor, *query);
    query->at = cursor.since(begin);
    return query;
}

std::unique_ptr<Query> parse_subquery(TokenCursor& cursor) {
    cursor.expect(TokenKind::LeftParenthesis);
    if (cursor.at(Keyword::With)) cursor.refuse_here();
    std::unique_ptr<Query> query = parse_query(cursor);
    cursor.expect(TokenKind::RightParenthesis);
    return query;
}

StatementPtr parse_query_statement(TokenCursor& cursor, std::vector<CommonTable> with) {
    auto statement = std::make_unique<QueryStatement>();
    std::unique_ptr<Query> query = parse_query(cursor);
    statement->query = std::move(*query);
    statement->query.with = std::move(with);
    return statement;
}

} // namespace tsql
