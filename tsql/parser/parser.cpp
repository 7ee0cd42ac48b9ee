// Runs the grammar over a whole text.
#include "tsql/parser/parser.h"

#include "tsql/lexer/lexer.h"
#include "tsql/parser/grammar.h"

namespace tsql {

Batch parse(std::string_view text) {
    return parse(text, tokenize(text));
}

Batch parse(std::string_view text, const std::vector<Token>& tokens) {
    TokenCursor cursor(text, tokens);
    Batch batch;
    batch.statements = parse_statements(cursor);
    if (!cursor.at_end()) cursor.refuse_here();
    batch.shaping_literals = cursor.shaping_literals();
    return batch;
}

ExpressionPtr parse_expression(std::string_view text) {
    const std::vector<Token> tokens = tokenize(text);
    TokenCursor cursor(text, tokens);
    ExpressionPtr expression = parse_any(cursor);
    if (!cursor.at_end()) cursor.refuse_here();
    return expression;
}

} // namespace tsql
