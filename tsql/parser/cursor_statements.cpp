// Cursors: DECLARE … CURSOR, OPEN, FETCH, CLOSE, DEALLOCATE.
#include "tsql/parser/grammar.h"

namespace tsql {

namespace {

template <typename Class> StatementPtr parse_on_cursor(TokenCursor& cursor) {
    cursor.take();
    if (cursor.at_word("GLOBAL") && cursor.peek(1).kind == TokenKind::Word) cursor.take();
    auto statement = std::make_unique<Class>();
    if (cursor.at(TokenKind::Variable))
        cursor.refuse_unsupported("A cursor variable", cursor.peek().at);
    statement->name = parse_name(cursor);
    return statement;
}

std::optional<FetchDirection> accept_direction(TokenCursor& cursor) {
    if (cursor.accept(Keyword::Next)) return FetchDirection::Next;
    if (cursor.accept(Keyword::Prior)) return FetchDirection::Prior;
    if (cursor.accept(Keyword::First)) return FetchDirection::First;
    if (cursor.accept(Keyword::Last)) return FetchDirection::Last;
    if (cursor.accept(Keyword::Absolute)) return FetchDirection::Absolute;
    if (cursor.accept(Keyword::Relative)) return FetchDirection::Relative;
    return std::nullopt;
}

} // namespace

StatementPtr parse_declare_cursor(TokenCursor& cursor, Name name, SourceRange begin) {
    auto declaration = std::make_unique<DeclareCursor>();
    declaration->name = std::move(name);
    while (!cursor.at(Keyword::Cursor)) { // INSENSITIVE, SCROLL
        const std::string option = cursor.upper_word();
        declaration->options.push_back({option, parse_name(cursor).at, false});
    }
    cursor.take();
    while (!cursor.at(Keyword::For)) { // LOCAL, STATIC, FAST_FORWARD, READ_ONLY …
        const std::string option = cursor.upper_word();
        declaration->options.push_back({option, parse_name(cursor).at, false});
    }
    cursor.take();
    std::vector<CommonTable> with;
    if (cursor.at(Keyword::With)) with = parse_with(cursor);
    declaration->query = parse_query(cursor);
    declaration->query->with = std::move(with);
    if (cursor.accept(Keyword::For)) { // FOR READ ONLY
        if (cursor.at(Keyword::Update))
            cursor.refuse_unsupported("A cursor FOR UPDATE", cursor.peek().at);
        cursor.expect(Keyword::Read);
        cursor.expect(Keyword::Only);
    }
    declaration->at = cursor.since(begin);
    return declaration;
}

StatementPtr parse_open_cursor(TokenCursor& cursor) {
    return parse_on_cursor<OpenCursor>(cursor);
}

StatementPtr parse_fetch(TokenCursor& cursor) {
    cursor.expect(Keyword::Fetch);
    auto fetch = std::make_unique<FetchCursor>();
    if (const auto direction = accept_direction(cursor)) {
        fetch->direction = *direction;
        if (*direction == FetchDirection::Absolute || *direction == FetchDirection::Relative)
            fetch->position = parse_value(cursor);
        cursor.expect(Keyword::From);
    } else {
        cursor.accept(Keyword::From);
    }
    fetch->name = parse_name(cursor);
    if (cursor.accept(Keyword::Into)) {
        do fetch->into.push_back(parse_variable_name(cursor));
        while (cursor.accept(TokenKind::Comma));
    }
    return fetch;
}

StatementPtr parse_close_cursor(TokenCursor& cursor) {
    return parse_on_cursor<CloseCursor>(cursor);
}

StatementPtr parse_deallocate_cursor(TokenCursor& cursor) {
    return parse_on_cursor<DeallocateCursor>(cursor);
}

} // namespace tsql
