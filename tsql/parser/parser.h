// The parser's front door: a batch text in, its syntax tree out.
#pragma once

#include "tsql/lexer/token.h"
#include "tsql/syntax/statement.h"

#include <string_view>

namespace tsql {

// Parses a whole batch (GO is no part of a batch). Throws Refusal at the first thing that is not
// T-SQL (102, 156, 105, 113, 170 …) or is T-SQL that this front end does not take (then the
// sentence names it); nothing is half-parsed. A text nested too deeply is refused with 191.
//
//     Batch batch = parse("UPDATE D6602 SET J = 0 WHERE QJ = '2024-03'");
//     const auto& update = as<Update>(*batch.statements.front());
Batch parse(std::string_view text);

// The same for tokens already cut from this text, as one has them after making its normal form.
Batch parse(std::string_view text, const std::vector<Token>& tokens);

// The literal a token of that kind becomes.
LiteralKind literal_kind(TokenKind kind);

// Parses a text that is one value or condition and nothing else, such as the default of a column.
ExpressionPtr parse_expression(std::string_view text);

} // namespace tsql
