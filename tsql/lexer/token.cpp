// Takes the marks off a token.
#include "tsql/lexer/token.h"

namespace tsql {

namespace {

std::string_view without_marks(const Token& token, std::string_view written) {
    switch (token.kind) {
    case TokenKind::QuotedName:
    case TokenKind::Text: return written.substr(1, written.size() - 2);
    case TokenKind::NationalText: return written.substr(2, written.size() - 3);
    case TokenKind::Binary: return written.substr(2);
    case TokenKind::Money: {
        const std::size_t figure = written.find_first_of(".0123456789");
        return figure == std::string_view::npos ? "0" : written.substr(figure);
    }
    default: return written;
    }
}

} // namespace

std::string value_of(const Token& token, std::string_view batch) {
    const std::string_view written = token.at.text(batch);
    const std::string_view inside = without_marks(token, written);
    if (!token.escaped) return std::string(inside);
    const char mark = written.back();
    std::string value;
    value.reserve(inside.size());
    for (std::size_t i = 0; i < inside.size(); ++i) {
        value += inside[i];
        if (inside[i] == mark) ++i; // its twin
    }
    return value;
}

} // namespace tsql
