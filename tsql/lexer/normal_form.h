// Statements that differ only in their literals are one statement: the text without its literals.
#pragma once

#include "tsql/lexer/token.h"

#include <span>

namespace tsql {

// A literal taken out of a text, its marks off; the n-th is the one with ordinal n.
struct TakenLiteral {
    TokenKind kind = TokenKind::Text;
    std::string text;
    SourceRange at;
};

// The key names the class of each literal, because its class decides types: the digits of a number
// before and behind the point, not the figure. Words keep their case (it shows in the names of
// result columns); blanks and comments fall away.
//
//     normal_form("SELECT K FROM A WHERE V > 1.50 AND K='x'")
//     // key "SELECT K FROM A WHERE V > ?d3,2 AND K = ?t", literals 1.50 and x
struct NormalForm {
    std::string key;
    std::vector<TakenLiteral> literals;
};

// Throws Refusal as the lexer does.
NormalForm normal_form(std::string_view batch);

// The same for tokens already cut; they must come from this very text.
NormalForm normal_form(std::string_view batch, std::span<const Token> tokens);

} // namespace tsql
