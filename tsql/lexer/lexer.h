// Cuts a T-SQL text into tokens; blanks and comments fall away.
#pragma once

#include "tsql/lexer/token.h"

namespace tsql {

// All tokens of the text, an End token last. The text must be UTF-8. Throws Refusal:
// 105 a text or quoted name that does not end, 113 a comment that does not end, 103 a name of more
// than 128 characters, 1038 an empty name, 102 a character or number that is none.
//
//     std::vector<Token> tokens = tokenize("SELECT N'借' -- side");   // SELECT, N'借', End
std::vector<Token> tokenize(std::string_view batch);

// The same into a vector that is used again and again; what it held is gone.
void tokenize(std::string_view batch, std::vector<Token>& tokens);

} // namespace tsql
