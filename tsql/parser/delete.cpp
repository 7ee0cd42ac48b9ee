// DELETE with its second FROM, and TRUNCATE TABLE.
#include "tsql/parser/grammar.h"

namespace tsql {

StatementPtr parse_delete(TokenCursor& cursor, std::vector<CommonTable> with) {
    cursor.expect(Keyword::Delete);
    auto statement = std::make_unique<Delete>();
    statement->with = std::move(with);
    statement->top = accept_top(cursor);
    cursor.accept(Keyword::From);
    statement->target = parse_dml_target(cursor);
    statement->output = accept_output(cursor);
    if (cursor.accept(Keyword::From)) statement->from = parse_from(cursor);
    if (cursor.accept(Keyword::Where)) {
        if (cursor.at(Keyword::Current, Keyword::Of))
            cursor.refuse_unsupported("WHERE CURRENT OF", cursor.peek().at);
        statement->where = parse_condition(cursor);
    }
    return statement;
}

StatementPtr parse_truncate(TokenCursor& cursor) {
    cursor.expect(Keyword::Truncate);
    cursor.expect(Keyword::Table);
    auto statement = std::make_unique<Truncate>();
    statement->target = parse_object_name(cursor);
    return statement;
}

} // namespace tsql
