// Names, names of several parts, aliases, variables and types.
#include "tsql/parser/grammar.h"
#include "tsql/source/diagnostic.h"

#include <charconv>

namespace tsql {

bool at_name(const TokenCursor& cursor) {
    const Token& token = cursor.peek();
    return token.kind == TokenKind::QuotedName ||
           (token.kind == TokenKind::Word && !is_reserved(token.keyword));
}

Name parse_name(TokenCursor& cursor) {
    if (!at_name(cursor)) cursor.refuse_here();
    const Token& token = cursor.take();
    return {cursor.value(token), token.at, token.kind == TokenKind::QuotedName};
}

ObjectName parse_object_name(TokenCursor& cursor) {
    ObjectName name;
    name.parts.push_back(parse_name(cursor));
    while (cursor.accept(TokenKind::Dot)) {
        if (name.parts.size() == 4)
            throw Refusal(117, cursor.since(name.parts.front().at),
                          "The object name contains more than the maximum number of prefixes. "
                          "The maximum is 3.");
        if (cursor.at(TokenKind::Dot)) { // db..T leaves the schema out
            name.parts.push_back({"", cursor.peek().at, false});
        } else {
            name.parts.push_back(parse_name(cursor));
        }
    }
    name.at = cursor.since(name.parts.front().at);
    return name;
}

std::vector<Name> parse_name_list(TokenCursor& cursor) {
    std::vector<Name> names;
    cursor.expect(TokenKind::LeftParenthesis);
    do names.push_back(parse_name(cursor));
    while (cursor.accept(TokenKind::Comma));
    cursor.expect(TokenKind::RightParenthesis);
    return names;
}

Name accept_alias(TokenCursor& cursor) {
    if (cursor.accept(Keyword::As)) return parse_name(cursor);
    return at_name(cursor) ? parse_name(cursor) : Name{};
}

std::string parse_variable_name(TokenCursor& cursor) {
    return cursor.value(cursor.expect(TokenKind::Variable));
}

namespace {

int parse_length(TokenCursor& cursor) {
    const Token& token = cursor.expect(TokenKind::Integer);
    const std::string_view digits = token.at.text(cursor.batch());
    int length = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), length);
    if (error != std::errc{} || end != digits.data() + digits.size()) cursor.refuse(token);
    return length;
}

// Types of two words become one: national character varying is nvarchar, double precision float.
bool accept_two_word_type(TokenCursor& cursor, TypeName& type) {
    const SourceRange begin = cursor.peek().at;
    const auto named = [&](const char* name) {
        const SourceRange at = cursor.since(begin);
        type.name.parts.push_back({name, at, false});
        type.name.at = at;
        return true;
    };
    if (cursor.accept(Keyword::Double, Keyword::Precision)) return named("float");
    const bool national = cursor.accept(Keyword::National);
    if (!national && !cursor.at_word("CHARACTER") &&
        !(cursor.at_word("CHAR") && cursor.peek(1).keyword == Keyword::Varying))
        return false;
    if (!cursor.at_word("CHARACTER") && !cursor.at_word("CHAR")) cursor.refuse_here();
    cursor.take();
    const bool varying = cursor.accept(Keyword::Varying);
    return named(national ? (varying ? "nvarchar" : "nchar") : (varying ? "varchar" : "char"));
}

} // namespace

TypeName parse_type(TokenCursor& cursor) {
    TypeName type;
    const SourceRange begin = cursor.peek().at;
    if (!accept_two_word_type(cursor, type)) type.name = parse_object_name(cursor);
    if (cursor.accept(TokenKind::LeftParenthesis)) {
        if (cursor.accept(Keyword::Max)) {
            type.max = true;
        } else {
            type.length = parse_length(cursor);
            if (cursor.accept(TokenKind::Comma)) type.scale = parse_length(cursor);
        }
        cursor.expect(TokenKind::RightParenthesis);
    }
    type.at = cursor.since(begin);
    return type;
}

} // namespace tsql
