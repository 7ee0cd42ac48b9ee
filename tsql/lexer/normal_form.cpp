// Writes the tokens back with one blank between them and a mark for each literal.
#include "tsql/lexer/normal_form.h"

#include "tsql/lexer/lexer.h"

#include <charconv>

namespace tsql {

namespace {

void append_number(std::string& key, std::size_t number) {
    char digits[20];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    key.append(digits, end);
}

// Digits that count: leading zeros before the point do not.
std::size_t whole_digits(std::string_view whole) {
    const std::size_t first = whole.find_first_not_of('0');
    return first == std::string_view::npos ? 0 : whole.size() - first;
}

void append_class(std::string& key, TokenKind kind, std::string_view written) {
    switch (kind) {
    case TokenKind::Integer: key += "?i"; return append_number(key, whole_digits(written));
    case TokenKind::Decimal: {
        const std::size_t point = written.find('.');
        const std::size_t scale = written.size() - point - 1;
        key += "?d";
        append_number(key, whole_digits(written.substr(0, point)) + scale);
        key += ',';
        return append_number(key, scale);
    }
    case TokenKind::Float: key += "?f"; return;
    case TokenKind::Money: key += "?m"; return;
    case TokenKind::NationalText: key += "?n"; return;
    case TokenKind::Binary: key += "?b"; return;
    default: key += "?t"; return;
    }
}

} // namespace

NormalForm normal_form(std::string_view batch) {
    return normal_form(batch, tokenize(batch));
}

NormalForm normal_form(std::string_view batch, std::span<const Token> tokens) {
    NormalForm form;
    if (tokens.empty()) return form;
    form.key.reserve(tokens.back().at.end - tokens.front().at.begin + tokens.size());
    for (const Token& token : tokens) {
        if (token.kind == TokenKind::End) break;
        if (!form.key.empty()) form.key += ' ';
        const std::string_view written = token.at.text(batch);
        if (token.is_literal()) {
            append_class(form.key, token.kind, written);
            form.literals.push_back({token.kind, value_of(token, batch), token.at});
        } else {
            form.key += written;
        }
    }
    return form;
}

} // namespace tsql
