// The tables of FROM: names, derived tables, VALUES, functions, joins.
#include "tsql/parser/grammar.h"

namespace tsql {

namespace {

TableSourcePtr parse_joined(TokenCursor& cursor);

constexpr std::string_view hint_words[] = {
    "NOLOCK",    "HOLDLOCK",       "UPDLOCK",      "ROWLOCK",         "TABLOCK",
    "TABLOCKX",  "PAGLOCK",        "XLOCK",        "READUNCOMMITTED", "READCOMMITTED",
    "READPAST",  "REPEATABLEREAD", "SERIALIZABLE", "NOWAIT",          "NOEXPAND",
    "FORCESEEK", "FORCESCAN",      "SNAPSHOT",     "KEEPIDENTITY",    "IGNORE_TRIGGERS"};

bool at_hint(const TokenCursor& cursor, std::size_t ahead) {
    const Token& token = cursor.peek(ahead);
    if (token.keyword == Keyword::Holdlock || token.keyword == Keyword::Index) return true;
    if (token.kind != TokenKind::Word) return false;
    const std::string_view word = token.at.text(cursor.batch());
    return std::any_of(std::begin(hint_words), std::end(hint_words), [&](std::string_view hint) {
        return std::equal(word.begin(), word.end(), hint.begin(), hint.end(),
                          [](char a, char b) { return (a >= 'a' && a <= 'z' ? a - 32 : a) == b; });
    });
}

std::vector<Name> parse_hint_list(TokenCursor& cursor) {
    std::vector<Name> hints;
    cursor.expect(TokenKind::LeftParenthesis);
    do {
        if (!at_hint(cursor, 0)) cursor.refuse_here();
        const Token& token = cursor.take();
        hints.push_back({cursor.value(token), token.at, false});
        if (token.keyword == Keyword::Index) { // INDEX(name, …), INDEX = name
            if (cursor.accept(TokenKind::Equal))
                parse_name(cursor);
            else
                parse_name_list(cursor);
        }
        cursor.accept(TokenKind::Comma);
    } while (!cursor.at(TokenKind::RightParenthesis));
    cursor.take();
    return hints;
}

TableSourcePtr parse_values_table(TokenCursor& cursor) {
    auto table = std::make_unique<ValuesTable>();
    cursor.expect(Keyword::Values);
    do table->rows.push_back(parse_value_row(cursor));
    while (cursor.accept(TokenKind::Comma));
    cursor.expect(TokenKind::RightParenthesis);
    table->alias = accept_alias(cursor);
    if (table->alias.empty()) cursor.refuse_here();
    if (cursor.at(TokenKind::LeftParenthesis)) table->columns = parse_name_list(cursor);
    return table;
}

TableSourcePtr parse_derived_table(TokenCursor& cursor) {
    auto table = std::make_unique<DerivedTable>();
    table->query = parse_subquery(cursor);
    table->alias = accept_alias(cursor);
    if (table->alias.empty()) cursor.refuse_here(); // a derived table must have a name
    if (cursor.at(TokenKind::LeftParenthesis)) table->columns = parse_name_list(cursor);
    return table;
}

TableSourcePtr parse_function_table(TokenCursor& cursor, ObjectName name) {
    auto table = std::make_unique<FunctionTable>();
    table->name = std::move(name);
    cursor.expect(TokenKind::LeftParenthesis);
    table->arguments = parse_arguments(cursor, false);
    cursor.expect(TokenKind::RightParenthesis);
    table->alias = accept_alias(cursor);
    if (!table->alias.empty() && cursor.at(TokenKind::LeftParenthesis))
        table->columns = parse_name_list(cursor);
    return table;
}

ObjectName parse_table_variable(TokenCursor& cursor) {
    const Token& token = cursor.take();
    ObjectName name;
    name.parts.push_back({cursor.value(token), token.at, false});
    name.at = token.at;
    return name;
}

TableSourcePtr parse_named_table(TokenCursor& cursor) {
    ObjectName name =
        cursor.at(TokenKind::Variable) ? parse_table_variable(cursor) : parse_object_name(cursor);
    if (cursor.at(TokenKind::LeftParenthesis) && !(name.parts.size() == 1 && at_hint(cursor, 1)))
        return parse_function_table(cursor, std::move(name));
    auto table = std::make_unique<NamedTable>();
    table->name = std::move(name);
    table->hints = accept_hints(cursor);
    table->alias = accept_alias(cursor);
    if (table->hints.empty()) table->hints = accept_hints(cursor);
    return table;
}

TableSourcePtr parse_table(TokenCursor& cursor) {
    const TokenCursor::Nesting nesting(cursor);
    const SourceRange begin = cursor.peek().at;
    TableSourcePtr table;
    if (cursor.at(Keyword::Openquery) || cursor.at(Keyword::Openrowset) ||
        cursor.at(Keyword::Opendatasource) || cursor.at(Keyword::Openxml))
        cursor.refuse_unsupported(spelling(cursor.peek().keyword), cursor.peek().at);
    if (!cursor.at(TokenKind::LeftParenthesis)) {
        table = parse_named_table(cursor);
    } else if (cursor.peek(1).keyword == Keyword::Select) {
        table = parse_derived_table(cursor);
    } else {
        cursor.take();
        if (cursor.at(Keyword::Values)) {
            table = parse_values_table(cursor);
        } else {
            table = parse_joined(cursor);
            cursor.expect(TokenKind::RightParenthesis);
        }
    }
    if (cursor.at(Keyword::Pivot) || cursor.at(Keyword::Unpivot) || cursor.at(Keyword::Tablesample))
        cursor.refuse_unsupported(spelling(cursor.peek().keyword), cursor.peek().at);
    table->at = cursor.since(begin);
    return table;
}

// Takes the words of a join up to and with JOIN or APPLY; none when no join follows.
std::optional<JoinKind> accept_join_words(TokenCursor& cursor) {
    if (cursor.accept(Keyword::Join)) return JoinKind::Inner;
    if (cursor.accept(Keyword::Cross, Keyword::Join)) return JoinKind::Cross;
    if (cursor.accept(Keyword::Cross, Keyword::Apply)) return JoinKind::CrossApply;
    if (cursor.accept(Keyword::Outer, Keyword::Apply)) return JoinKind::OuterApply;
    std::optional<JoinKind> kind;
    if (cursor.accept(Keyword::Inner)) {
        kind = JoinKind::Inner;
    } else {
        if (cursor.accept(Keyword::Left))
            kind = JoinKind::Left;
        else if (cursor.accept(Keyword::Right))
            kind = JoinKind::Right;
        else if (cursor.accept(Keyword::Full))
            kind = JoinKind::Full;
        else
            return std::nullopt;
        cursor.accept(Keyword::Outer);
    }
    if (cursor.at_word("LOOP") || cursor.at_word("HASH") || cursor.at(Keyword::Merge) ||
        cursor.at_word("REMOTE"))
        cursor.take(); // how the server is to join
    cursor.expect(Keyword::Join);
    return kind;
}

bool needs_condition(JoinKind kind) {
    return kind == JoinKind::Inner || kind == JoinKind::Left || kind == JoinKind::Right ||
           kind == JoinKind::Full;
}

// Joins around a first table already taken. A JOIN B JOIN C ON … ON …: before its own ON comes,
// the right side may be joined itself.
TableSourcePtr parse_joins(TokenCursor& cursor, TableSourcePtr left, bool until_on) {
    const TokenCursor::Nesting nesting(cursor);
    const SourceRange begin = left->at;
    while (!(until_on && cursor.at(Keyword::On))) {
        const std::optional<JoinKind> kind = accept_join_words(cursor);
        if (!kind) break;
        cursor.grow_chain();
        auto join = std::make_unique<Join>();
        join->type = *kind;
        join->left = std::move(left);
        join->right = parse_table(cursor);
        if (needs_condition(*kind)) {
            join->right = parse_joins(cursor, std::move(join->right), true);
            cursor.expect(Keyword::On);
            join->on = parse_condition(cursor);
        }
        join->at = cursor.since(begin);
        left = std::move(join);
    }
    return left;
}

TableSourcePtr parse_joined(TokenCursor& cursor) {
    TableSourcePtr first = parse_table(cursor);
    return parse_joins(cursor, std::move(first), false);
}

} // namespace

std::vector<Name> accept_hints(TokenCursor& cursor) {
    if (cursor.at(Keyword::With) && cursor.peek(1).kind == TokenKind::LeftParenthesis) {
        cursor.take();
        return parse_hint_list(cursor);
    }
    if (cursor.at(TokenKind::LeftParenthesis) && at_hint(cursor, 1)) return parse_hint_list(cursor);
    return {};
}

std::vector<TableSourcePtr> parse_from(TokenCursor& cursor) {
    std::vector<TableSourcePtr> tables;
    do tables.push_back(parse_joined(cursor));
    while (cursor.accept(TokenKind::Comma));
    return tables;
}

} // namespace tsql
