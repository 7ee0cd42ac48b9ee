// CREATE VIEW.
#include "tsql/parser/grammar.h"

namespace tsql {

StatementPtr parse_create_view(TokenCursor& cursor, DefinitionMode mode) {
    cursor.expect(Keyword::View);
    auto view = std::make_unique<CreateView>();
    view->mode = mode;
    view->name = parse_object_name(cursor);
    if (cursor.at(TokenKind::LeftParenthesis)) view->columns = parse_name_list(cursor);
    skip_routine_options(cursor);
    cursor.expect(Keyword::As);
    if (cursor.at(Keyword::With)) {
        std::vector<CommonTable> with = parse_with(cursor);
        view->query = parse_query(cursor);
        view->query->with = std::move(with);
    } else {
        view->query = parse_query(cursor);
    }
    if (cursor.accept(Keyword::With, Keyword::Check)) cursor.expect(Keyword::Option);
    require_end_of_batch(cursor);
    return view;
}

} // namespace tsql
