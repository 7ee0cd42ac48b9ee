// The refusals of the parser and the words it knows only by spelling.
#include "tsql/parser/token_cursor.h"

#include "tsql/source/diagnostic.h"

namespace tsql {

namespace {

std::string in_capitals(std::string_view text) {
    std::string upper(text);
    for (char& c : upper)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
    return upper;
}

// A long text is cut at a character, so that the message stays readable.
std::string shortened(std::string_view text) {
    constexpr std::size_t longest = 60;
    if (text.size() <= longest) return std::string(text);
    std::size_t end = longest;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) --end;
    return std::string(text.substr(0, end)) + "…";
}

} // namespace

bool TokenCursor::at_word(std::string_view upper) const {
    if (peek().kind != TokenKind::Word) return false;
    const std::string_view word = peek().at.text(batch_);
    return word.size() == upper.size() && in_capitals(word) == upper;
}

std::string TokenCursor::upper_word() const {
    return in_capitals(peek().at.text(batch_));
}

void TokenCursor::refuse(const Token& token) const {
    const bool end = token.kind == TokenKind::End;
    const Token& shown = end && tokens_.size() > 1 ? tokens_[tokens_.size() - 2] : token;
    if (is_reserved(token.keyword))
        throw Refusal(156, token.at,
                      "Incorrect syntax near the keyword '" + std::string(spelling(token.keyword)) +
                          "'.");
    throw Refusal(102, token.at,
                  "Incorrect syntax near '" + shortened(shown.at.text(batch_)) + "'.");
}

void TokenCursor::refuse_unsupported(std::string_view what, SourceRange at) const {
    throw Refusal(40510, at, std::string(what) + " is not supported.");
}

void TokenCursor::refuse_depth() const {
    throw Refusal(191, peek().at,
                  "Some part of your SQL statement is nested too deeply. Rewrite the query or "
                  "break it up into smaller queries.");
}

std::vector<int> TokenCursor::shaping_literals() const {
    std::vector<char> is_node;
    for (const Token& token : tokens_)
        if (token.is_literal()) is_node.push_back(0);
    for (const int ordinal : literal_nodes_) is_node[static_cast<std::size_t>(ordinal)] = 1;
    std::vector<int> shaping;
    for (std::size_t i = 0; i < is_node.size(); ++i)
        if (is_node[i] == 0) shaping.push_back(static_cast<int>(i));
    return shaping;
}

} // namespace tsql
