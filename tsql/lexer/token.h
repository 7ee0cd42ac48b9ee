// A token: the smallest piece of a T-SQL text that means something.
#pragma once

#include "tsql/lexer/keyword.h"
#include "tsql/source/position.h"

#include <string>
#include <vector>

namespace tsql {

enum class TokenKind : std::uint8_t {
    End,            // after the last token; `at` is the empty stretch at the end of the text
    Word,           // a name or keyword: K, SELECT, 科目, #t
    QuotedName,     // [x] or "x"
    Variable,       // @x
    SystemVariable, // @@ROWCOUNT
    // Literals; keep them together.
    Integer,
    Decimal,
    Float,
    Money,
    Text,
    NationalText,
    Binary,
    // Signs.
    LeftParenthesis,
    RightParenthesis,
    Comma,
    Dot,
    Semicolon,
    Colon,
    Plus,
    Minus,
    Star,
    Slash,
    Percent,
    Ampersand,
    Bar,
    Caret,
    Tilde,
    Equal,
    NotEqual, // <> !=
    Less,
    LessEqual, // <= !>
    Greater,
    GreaterEqual, // >= !<
    PlusEqual,
    MinusEqual,
    StarEqual,
    SlashEqual,
    PercentEqual,
    AmpersandEqual,
    BarEqual,
    CaretEqual,
};

struct Token {
    TokenKind kind = TokenKind::End;
    Keyword keyword = Keyword::None; // of Word only
    bool escaped = false;            // a doubled quote or bracket stands inside
    SourceRange at;
    int literal_ordinal = -1; // of literals: which of the text, counted from 0

    bool is_literal() const { return kind >= TokenKind::Integer && kind <= TokenKind::Binary; }
};

// What the token stands for without its marks: the name inside [ ], the text inside quotes with
// doubled quotes undone, the digits of a number, of money without its sign, of 0x without 0x.
// Words and variables come as written.
std::string value_of(const Token& token, std::string_view batch);

} // namespace tsql
