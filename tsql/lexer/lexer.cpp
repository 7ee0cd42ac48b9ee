// One pass over the bytes; the first byte of a token says what it is.
#include "tsql/lexer/lexer.h"

#include "tsql/lexer/characters.h"
#include "tsql/source/diagnostic.h"

namespace tsql {

namespace {

constexpr std::size_t longest_name = 128;

class Lexer {
public:
    Lexer(std::string_view batch, std::vector<Token>& tokens) : text_(batch), tokens_(tokens) {}

    void run();

private:
    void skip_blanks_and_comments();
    void skip_block_comment();
    bool skip_wide_blank();
    bool at_wide_letter() const; // broken ones too: they are refused where they stand

    void read_token();
    void read_word();
    void read_quoted(TokenKind kind, char close);
    void read_number();
    void read_hexadecimal();
    void read_money(std::size_t sign_length);
    bool try_currency();
    void read_sign();
    void read_digits();

    char peek(std::size_t ahead = 0) const {
        return at_ + ahead < text_.size() ? text_[at_ + ahead] : '\0';
    }
    bool done() const { return at_ >= text_.size(); }
    SourceRange since(std::size_t begin) const {
        return {static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(at_)};
    }
    void add(TokenKind kind, std::size_t begin) {
        tokens_.push_back({kind, Keyword::None, false, since(begin)});
        if (tokens_.back().is_literal()) tokens_.back().literal_ordinal = literals_++;
    }
    // Moves over one character outside ASCII; refuses a broken one.
    void pass_wide();
    [[noreturn]] void refuse_character() const;
    void check_name_length(std::string_view name, SourceRange at) const;

    std::string_view text_;
    std::size_t at_ = 0;
    int literals_ = 0;
    std::vector<Token>& tokens_;
};

void Lexer::run() {
    tokens_.clear();
    tokens_.reserve(text_.size() / 4 + 4);
    for (skip_blanks_and_comments(); !done(); skip_blanks_and_comments()) read_token();
    add(TokenKind::End, at_);
}

void Lexer::skip_blanks_and_comments() {
    while (!done()) {
        const char c = text_[at_];
        if (class_of(c) == CharacterClass::Blank) {
            ++at_;
        } else if (c == '-' && peek(1) == '-') {
            while (!done() && text_[at_] != '\n') ++at_;
        } else if (c == '/' && peek(1) == '*') {
            skip_block_comment();
        } else if (class_of(c) != CharacterClass::Wide || !skip_wide_blank()) {
            return;
        }
    }
}

void Lexer::skip_block_comment() {
    const std::size_t begin = at_;
    std::size_t depth = 0; // comments nest
    do {
        if (done())
            throw Refusal(
                113, {static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(begin + 2)},
                "Missing end comment mark '*/'.");
        if (peek() == '/' && peek(1) == '*') {
            ++depth;
            at_ += 2;
        } else if (peek() == '*' && peek(1) == '/') {
            --depth;
            at_ += 2;
        } else {
            ++at_;
        }
    } while (depth > 0);
}

bool Lexer::skip_wide_blank() {
    const int length = utf8_length(text_.substr(at_));
    if (length == 0 || !is_wide_blank(text_.substr(at_, static_cast<std::size_t>(length))))
        return false;
    at_ += static_cast<std::size_t>(length);
    return true;
}

bool Lexer::at_wide_letter() const {
    const auto length = static_cast<std::size_t>(utf8_length(text_.substr(at_)));
    const std::string_view character = text_.substr(at_, length);
    return !is_wide_blank(character) && !is_wide_sign(character);
}

void Lexer::pass_wide() {
    const int length = utf8_length(text_.substr(at_));
    if (length == 0) refuse_character();
    at_ += static_cast<std::size_t>(length);
}

void Lexer::refuse_character() const {
    const auto byte = static_cast<unsigned char>(text_[at_]);
    const int length = utf8_length(text_.substr(at_));
    const auto end = at_ + static_cast<std::size_t>(std::max(length, 1));
    const SourceRange here{static_cast<std::uint32_t>(at_), static_cast<std::uint32_t>(end)};
    if (length == 0) throw Refusal(102, here, "The text is not valid UTF-8.");
    if (byte < 0x20 || byte == 0x7F)
        throw Refusal(102, here, "Incorrect syntax near a control character.");
    throw Refusal(102, here, "Incorrect syntax near '" + std::string(here.text(text_)) + "'.");
}

void Lexer::read_token() {
    const char c = text_[at_];
    switch (class_of(c)) {
    case CharacterClass::Letter:
        if ((c == 'N' || c == 'n') && peek(1) == '\'') {
            read_quoted(TokenKind::NationalText, '\'');
        } else if (c == '$' && class_of(peek(1)) != CharacterClass::Letter) {
            read_money(1);
        } else {
            read_word();
        }
        return;
    case CharacterClass::Wide:
        if (!try_currency()) read_word();
        return;
    case CharacterClass::Digit: return read_number();
    case CharacterClass::Sign:
        if (c == '\'') return read_quoted(TokenKind::Text, '\'');
        if (c == '[') return read_quoted(TokenKind::QuotedName, ']');
        if (c == '"') return read_quoted(TokenKind::QuotedName, '"');
        if (c == '.' && class_of(peek(1)) == CharacterClass::Digit) return read_number();
        return read_sign();
    case CharacterClass::Blank:
    case CharacterClass::Other: refuse_character();
    }
}

void Lexer::read_word() {
    const std::size_t begin = at_;
    while (!done()) {
        const CharacterClass next = class_of(text_[at_]);
        if (next == CharacterClass::Wide) {
            if (!at_wide_letter()) break;
            pass_wide();
        } else if (next == CharacterClass::Letter || next == CharacterClass::Digit) {
            ++at_;
        } else {
            break;
        }
    }
    const std::string_view word = text_.substr(begin, at_ - begin);
    check_name_length(word, since(begin));
    if (word.empty()) refuse_character();
    if (word.starts_with("@@")) return add(TokenKind::SystemVariable, begin);
    if (word.starts_with('@')) return add(TokenKind::Variable, begin);
    add(TokenKind::Word, begin);
    tokens_.back().keyword = keyword_of(word);
}

void Lexer::read_quoted(TokenKind kind, char close) {
    const std::size_t begin = at_;
    at_ += kind == TokenKind::NationalText ? 2 : 1;
    const std::size_t inside = at_;
    bool escaped = false;
    while (true) {
        if (done()) {
            const std::string_view open = text_.substr(inside, text_.find('\n', inside) - inside);
            throw Refusal(105, since(begin),
                          "Unclosed quotation mark after the character string '" +
                              std::string(open) + "'.");
        }
        if (text_[at_] == close) {
            if (peek(1) != close) break;
            escaped = true;
            at_ += 2;
        } else if (class_of(text_[at_]) == CharacterClass::Wide) {
            pass_wide();
        } else {
            ++at_;
        }
    }
    const std::string_view content = text_.substr(inside, at_ - inside);
    ++at_;
    if (kind == TokenKind::QuotedName) {
        if (content.empty())
            throw Refusal(1038, since(begin), "An object or column name is missing or empty.");
        check_name_length(content, since(begin));
    }
    add(kind, begin);
    tokens_.back().escaped = escaped;
}

void Lexer::check_name_length(std::string_view name, SourceRange at) const {
    if (name.size() <= longest_name) return;
    std::size_t characters = 0;
    for (const char c : name) characters += (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    if (characters > longest_name)
        throw Refusal(103, at,
                      "The identifier that starts with '" + std::string(name.substr(0, 30)) +
                          "' is too long. Maximum length is 128.");
}

void Lexer::read_digits() {
    while (class_of(peek()) == CharacterClass::Digit) ++at_;
}

void Lexer::read_number() {
    const std::size_t begin = at_;
    if (peek() == '0' && (peek(1) == 'x' || peek(1) == 'X')) return read_hexadecimal();
    read_digits();
    TokenKind kind = TokenKind::Integer;
    if (peek() == '.') {
        kind = TokenKind::Decimal;
        ++at_;
        read_digits();
    }
    if (peek() == 'e' || peek() == 'E') {
        kind = TokenKind::Float;
        ++at_;
        if (peek() == '+' || peek() == '-') ++at_;
        read_digits(); // 1e is 1e0, as the server reads it
    }
    add(kind, begin);
}

void Lexer::read_hexadecimal() {
    const std::size_t begin = at_;
    const auto is_hexadecimal = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
    };
    for (at_ += 2; is_hexadecimal(peek());) ++at_;
    add(TokenKind::Binary, begin);
}

void Lexer::read_money(std::size_t sign_length) {
    const std::size_t begin = at_;
    at_ += sign_length;
    read_digits();
    if (peek() == '.') {
        ++at_;
        read_digits();
    }
    add(TokenKind::Money, begin);
}

// ¥ and ￥ before a figure; elsewhere they are characters of a name.
bool Lexer::try_currency() {
    for (const std::string_view sign : {"\u00A5", "\uFFE5"}) {
        if (text_.substr(at_).starts_with(sign) &&
            class_of(peek(sign.size())) == CharacterClass::Digit) {
            read_money(sign.size());
            return true;
        }
    }
    return false;
}

// The sign made of this character alone; End when it makes none.
TokenKind single_sign(char c) {
    switch (c) {
    case '(': return TokenKind::LeftParenthesis;
    case ')': return TokenKind::RightParenthesis;
    case ',': return TokenKind::Comma;
    case '.': return TokenKind::Dot;
    case ';': return TokenKind::Semicolon;
    case ':': return TokenKind::Colon;
    case '+': return TokenKind::Plus;
    case '-': return TokenKind::Minus;
    case '*': return TokenKind::Star;
    case '/': return TokenKind::Slash;
    case '%': return TokenKind::Percent;
    case '&': return TokenKind::Ampersand;
    case '|': return TokenKind::Bar;
    case '^': return TokenKind::Caret;
    case '~': return TokenKind::Tilde;
    case '=': return TokenKind::Equal;
    case '<': return TokenKind::Less;
    case '>': return TokenKind::Greater;
    default: return TokenKind::End;
    }
}

// The sign made of two characters; End when they make none.
TokenKind double_sign(char first, char second) {
    if (second == '=') {
        switch (first) {
        case '+': return TokenKind::PlusEqual;
        case '-': return TokenKind::MinusEqual;
        case '*': return TokenKind::StarEqual;
        case '/': return TokenKind::SlashEqual;
        case '%': return TokenKind::PercentEqual;
        case '&': return TokenKind::AmpersandEqual;
        case '|': return TokenKind::BarEqual;
        case '^': return TokenKind::CaretEqual;
        case '<': return TokenKind::LessEqual;
        case '>': return TokenKind::GreaterEqual;
        case '!': return TokenKind::NotEqual;
        default: return TokenKind::End;
        }
    }
    if (first == '<' && second == '>') return TokenKind::NotEqual;
    if (first == '!' && second == '<') return TokenKind::GreaterEqual;
    if (first == '!' && second == '>') return TokenKind::LessEqual;
    return TokenKind::End;
}

void Lexer::read_sign() {
    const std::size_t begin = at_;
    TokenKind kind = double_sign(peek(), peek(1));
    if (kind != TokenKind::End) {
        at_ += 2;
    } else {
        kind = single_sign(peek());
        if (kind == TokenKind::End) refuse_character();
        ++at_;
    }
    add(kind, begin);
}

} // namespace

std::vector<Token> tokenize(std::string_view batch) {
    std::vector<Token> tokens;
    tokenize(batch, tokens);
    return tokens;
}

void tokenize(std::string_view batch, std::vector<Token>& tokens) {
    Lexer(batch, tokens).run();
}

} // namespace tsql
