// OUTPUT: the rows a statement wrote or removed, sent to the client or into a table.
#include "tsql/parser/grammar.h"

namespace tsql {

std::optional<OutputClause> accept_output(TokenCursor& cursor) {
    if (!cursor.at(Keyword::Output)) return std::nullopt;
    OutputClause output;
    const SourceRange begin = cursor.take().at;
    do output.items.push_back(parse_select_item(cursor));
    while (cursor.accept(TokenKind::Comma));
    if (cursor.accept(Keyword::Into)) {
        output.into = parse_dml_target(cursor);
        if (cursor.at(TokenKind::LeftParenthesis) && !at_query(cursor))
            output.into_columns = parse_name_list(cursor);
    }
    output.at = cursor.since(begin);
    return output;
}

} // namespace tsql
