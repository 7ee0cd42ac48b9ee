// Cuts a batch into pieces that can be compiled and cached each for itself.
#pragma once

#include "tsql/lexer/token.h"

#include <cstddef>
#include <vector>

namespace tsql {

// Tokens [first, last) of the batch, without the semicolon behind them.
struct Unit {
    std::size_t first = 0;
    std::size_t last = 0;
};

// A cut falls on a semicolon outside parentheses, CASE … END and BEGIN … END that no ELSE follows.
// A batch with local variables is one piece, and so is the text of a view or routine: what they
// declare reaches to their end. Pieces without tokens are left out.
std::vector<Unit> units_of(const std::vector<Token>& tokens);

} // namespace tsql
