// The words T-SQL gives a meaning to, and which of them cannot be names.
#pragma once

#include <cstdint>
#include <string_view>

namespace tsql {

enum class Keyword : std::uint8_t {
    None, // not a keyword
#define TSQL_KEYWORD(id, word, reserved) id,
#include "tsql/lexer/keywords.inc"
#undef TSQL_KEYWORD
};

// The keyword a word is, whatever its case; None for any other word.
Keyword keyword_of(std::string_view word);

// Whether the word can never be a name unless bracketed: SELECT is reserved, OUTPUT is not.
bool is_reserved(Keyword keyword);

// The word in capitals, for messages.
std::string_view spelling(Keyword keyword);

} // namespace tsql
