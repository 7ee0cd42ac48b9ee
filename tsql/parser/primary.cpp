// What operators work on: literals, columns, variables, calls, CASE, parentheses, subqueries.
#include "tsql/parser/grammar.h"

namespace tsql {

namespace {

ExpressionPtr parse_case(TokenCursor& cursor) {
    const TokenCursor::Nesting nesting(cursor);
    const SourceRange begin = cursor.expect(Keyword::Case).at;
    auto result = std::make_unique<Case>();
    if (!cursor.at(Keyword::When)) result->subject = parse_value(cursor);
    if (!cursor.at(Keyword::When)) cursor.refuse_here();
    while (cursor.accept(Keyword::When)) {
        CaseBranch branch;
        branch.when = result->subject ? parse_value(cursor) : parse_condition(cursor);
        cursor.expect(Keyword::Then);
        branch.then = parse_value(cursor);
        result->branches.push_back(std::move(branch));
    }
    if (cursor.accept(Keyword::Else)) result->otherwise = parse_value(cursor);
    cursor.expect(Keyword::End);
    result->at = cursor.since(begin);
    return result;
}

// CAST(x AS t) and CONVERT(t, x[, style]), plain or TRY_.
ExpressionPtr parse_conversion(TokenCursor& cursor) {
    const Token& word = cursor.take();
    const bool converts = word.keyword == Keyword::Convert || word.keyword == Keyword::TryConvert;
    auto cast = std::make_unique<Cast>();
    cast->is_try = word.keyword == Keyword::TryCast || word.keyword == Keyword::TryConvert;
    cursor.expect(TokenKind::LeftParenthesis);
    if (converts) {
        cast->type = parse_type(cursor);
        cursor.expect(TokenKind::Comma);
        cast->operand = parse_value(cursor);
        if (cursor.accept(TokenKind::Comma)) cast->style = parse_value(cursor);
    } else {
        cast->operand = parse_value(cursor);
        cursor.expect(Keyword::As);
        cast->type = parse_type(cursor);
    }
    cursor.expect(TokenKind::RightParenthesis);
    cast->at = cursor.since(word.at);
    return cast;
}

ExpressionPtr parse_exists(TokenCursor& cursor) {
    const SourceRange begin = cursor.expect(Keyword::Exists).at;
    auto exists = std::make_unique<Exists>();
    exists->query = parse_subquery(cursor);
    exists->at = cursor.since(begin);
    return exists;
}

ExpressionPtr parse_column_updated(TokenCursor& cursor) {
    const SourceRange begin = cursor.expect(Keyword::Update).at;
    auto updated = std::make_unique<ColumnUpdated>();
    cursor.expect(TokenKind::LeftParenthesis);
    updated->column = parse_name(cursor);
    cursor.expect(TokenKind::RightParenthesis);
    updated->at = cursor.since(begin);
    return updated;
}

ExpressionPtr parse_parenthesised(TokenCursor& cursor) {
    const SourceRange begin = cursor.peek().at;
    if (cursor.peek(1).keyword == Keyword::Select) {
        auto subquery = std::make_unique<ScalarSubquery>();
        subquery->query = parse_subquery(cursor);
        subquery->at = cursor.since(begin);
        return subquery;
    }
    cursor.expect(TokenKind::LeftParenthesis);
    ExpressionPtr inside = parse_any(cursor);
    cursor.expect(TokenKind::RightParenthesis);
    inside->at = cursor.since(begin);
    return inside;
}

template <typename Class> ExpressionPtr parse_variable(TokenCursor& cursor) {
    const Token& token = cursor.take();
    auto variable = std::make_unique<Class>();
    variable->name = cursor.value(token);
    variable->at = token.at;
    return variable;
}

// CURRENT_TIMESTAMP and its kin are calls without parentheses.
bool is_call_without_parentheses(Keyword keyword) {
    return keyword == Keyword::CurrentTimestamp || keyword == Keyword::CurrentUser ||
           keyword == Keyword::SessionUser || keyword == Keyword::SystemUser ||
           keyword == Keyword::User;
}

ExpressionPtr parse_named(TokenCursor& cursor) {
    const Token& word = cursor.peek();
    if (at_function_call(cursor)) {
        ObjectName name;
        name.parts.push_back({cursor.value(cursor.take()), word.at, false});
        name.at = word.at;
        return parse_function_call(cursor, std::move(name));
    }
    if (is_call_without_parentheses(word.keyword)) {
        auto call = std::make_unique<FunctionCall>();
        call->name.parts.push_back({cursor.value(cursor.take()), word.at, false});
        call->name.at = call->at = word.at;
        return call;
    }
    ObjectName name = parse_object_name(cursor);
    if (cursor.at(TokenKind::LeftParenthesis)) return parse_function_call(cursor, std::move(name));
    auto column = std::make_unique<ColumnReference>();
    column->at = name.at;
    column->name = std::move(name);
    return column;
}

ExpressionPtr parse_word(TokenCursor& cursor) {
    const bool call = cursor.peek(1).kind == TokenKind::LeftParenthesis;
    switch (cursor.peek().keyword) {
    case Keyword::Null: return parse_literal(cursor);
    case Keyword::Case: return parse_case(cursor);
    case Keyword::Exists: return parse_exists(cursor);
    case Keyword::Convert:
    case Keyword::TryConvert: return parse_conversion(cursor);
    case Keyword::Cast:
    case Keyword::TryCast: return call ? parse_conversion(cursor) : parse_named(cursor);
    case Keyword::Parse:
    case Keyword::TryParse:
        if (call) cursor.refuse_unsupported("PARSE", cursor.peek().at);
        return parse_named(cursor);
    case Keyword::Contains:
    case Keyword::Freetext: cursor.refuse_unsupported("Full-text search", cursor.peek().at);
    case Keyword::Update:
        if (call) return parse_column_updated(cursor);
        return parse_named(cursor);
    default: return parse_named(cursor);
    }
}

ExpressionPtr parse_without_suffix(TokenCursor& cursor) {
    switch (cursor.peek().kind) {
    case TokenKind::LeftParenthesis: return parse_parenthesised(cursor);
    case TokenKind::Variable: return parse_variable<Variable>(cursor);
    case TokenKind::SystemVariable: return parse_variable<SystemVariable>(cursor);
    case TokenKind::QuotedName: return parse_named(cursor);
    case TokenKind::Word: return parse_word(cursor);
    default: return parse_literal(cursor);
    }
}

} // namespace

ExpressionPtr parse_primary(TokenCursor& cursor) {
    ExpressionPtr primary = parse_without_suffix(cursor);
    while (cursor.at(Keyword::Collate)) {
        require_value(cursor, *primary);
        cursor.take();
        cursor.grow_chain();
        auto collate = std::make_unique<Collate>();
        const SourceRange begin = primary->at;
        collate->operand = std::move(primary);
        collate->collation = parse_name(cursor);
        collate->at = cursor.since(begin);
        primary = std::move(collate);
    }
    return primary;
}

} // namespace tsql
