// Calls: arguments, DISTINCT and *, WITHIN GROUP, OVER with its frame.
#include "tsql/parser/grammar.h"

namespace tsql {

namespace {

// Functions whose names are reserved words and so no names elsewhere.
bool is_function_word(Keyword keyword) {
    return keyword == Keyword::Left || keyword == Keyword::Right || keyword == Keyword::Coalesce ||
           keyword == Keyword::Nullif || keyword == Keyword::Identity;
}

FrameBound parse_frame_bound(TokenCursor& cursor) {
    FrameBound bound;
    if (cursor.accept(Keyword::Unbounded)) {
        if (cursor.accept(Keyword::Preceding)) {
            bound.kind = FrameBoundKind::UnboundedPreceding;
        } else {
            cursor.expect(Keyword::Following);
            bound.kind = FrameBoundKind::UnboundedFollowing;
        }
        return bound;
    }
    if (cursor.accept(Keyword::Current)) {
        cursor.expect(Keyword::Row);
        return bound;
    }
    bound.offset = parse_literal(cursor);
    if (cursor.accept(Keyword::Preceding)) {
        bound.kind = FrameBoundKind::Preceding;
    } else {
        cursor.expect(Keyword::Following);
        bound.kind = FrameBoundKind::Following;
    }
    return bound;
}

WindowFrame parse_frame(TokenCursor& cursor) {
    WindowFrame frame;
    frame.unit = cursor.take().keyword == Keyword::Rows ? FrameUnit::Rows : FrameUnit::Range;
    if (cursor.accept(Keyword::Between)) {
        frame.start = parse_frame_bound(cursor);
        cursor.expect(Keyword::And);
        frame.end = parse_frame_bound(cursor);
    } else {
        frame.start = parse_frame_bound(cursor);
    }
    return frame;
}

std::unique_ptr<Over> parse_over(TokenCursor& cursor) {
    const SourceRange begin = cursor.expect(Keyword::Over).at;
    auto over = std::make_unique<Over>();
    cursor.expect(TokenKind::LeftParenthesis);
    if (cursor.accept(Keyword::Partition)) {
        cursor.expect(Keyword::By);
        over->partition = parse_values(cursor);
    }
    if (cursor.accept(Keyword::Order, Keyword::By)) over->order = parse_order_items(cursor);
    if (cursor.at(Keyword::Rows) || cursor.at(Keyword::Range)) over->frame = parse_frame(cursor);
    cursor.expect(TokenKind::RightParenthesis);
    over->at = cursor.since(begin);
    return over;
}

std::vector<OrderItem> parse_within_group(TokenCursor& cursor) {
    cursor.expect(Keyword::Within);
    cursor.expect(Keyword::Group);
    cursor.expect(TokenKind::LeftParenthesis);
    cursor.expect(Keyword::Order);
    cursor.expect(Keyword::By);
    std::vector<OrderItem> order = parse_order_items(cursor);
    cursor.expect(TokenKind::RightParenthesis);
    return order;
}

bool is_named(const ObjectName& name, std::string_view upper) {
    const std::string& text = name.object().text;
    if (name.parts.size() != 1 || text.size() != upper.size()) return false;
    for (std::size_t i = 0; i < text.size(); ++i)
        if ((text[i] & ~0x20) != upper[i]) return false;
    return true;
}

} // namespace

bool at_function_call(const TokenCursor& cursor) {
    return cursor.peek(1).kind == TokenKind::LeftParenthesis &&
           is_function_word(cursor.peek().keyword);
}

std::vector<ExpressionPtr> parse_arguments(TokenCursor& cursor, bool first_is_condition) {
    std::vector<ExpressionPtr> arguments;
    if (cursor.at(TokenKind::RightParenthesis)) return arguments;
    do {
        if (cursor.at(Keyword::Default)) {
            auto mark = std::make_unique<DefaultMark>();
            mark->at = cursor.take().at;
            arguments.push_back(std::move(mark));
        } else if (first_is_condition && arguments.empty()) {
            arguments.push_back(parse_condition(cursor));
        } else {
            arguments.push_back(parse_value(cursor));
        }
    } while (cursor.accept(TokenKind::Comma));
    return arguments;
}

ExpressionPtr parse_function_call(TokenCursor& cursor, ObjectName name) {
    const TokenCursor::Nesting nesting(cursor);
    auto call = std::make_unique<FunctionCall>();
    const SourceRange begin = name.at;
    const bool first_is_condition = is_named(name, "IIF");
    call->name = std::move(name);
    cursor.expect(TokenKind::LeftParenthesis);
    if (cursor.at(TokenKind::Star) && cursor.peek(1).kind == TokenKind::RightParenthesis) {
        cursor.take();
        call->star = true;
    } else {
        call->distinct = cursor.accept(Keyword::Distinct);
        if (!call->distinct) cursor.accept(Keyword::All);
        call->arguments = parse_arguments(cursor, first_is_condition);
    }
    cursor.expect(TokenKind::RightParenthesis);
    if (cursor.at(Keyword::Within, Keyword::Group)) call->within_group = parse_within_group(cursor);
    if (cursor.at(Keyword::Over)) call->over = parse_over(cursor);
    call->at = cursor.since(begin);
    return call;
}

} // namespace tsql
