// CREATE INDEX.
#include "tsql/parser/grammar.h"

namespace tsql {

StatementPtr parse_create_index(TokenCursor& cursor) {
    cursor.expect(Keyword::Create);
    auto index = std::make_unique<CreateIndex>();
    index->unique = cursor.accept(Keyword::Unique);
    index->clustered = cursor.accept(Keyword::Clustered);
    if (!index->clustered) cursor.accept(Keyword::Nonclustered);
    cursor.expect(Keyword::Index);
    index->name = parse_name(cursor);
    cursor.expect(Keyword::On);
    index->table = parse_object_name(cursor);
    index->columns = parse_index_columns(cursor);
    if (cursor.accept(Keyword::Include)) index->include = parse_name_list(cursor);
    if (cursor.accept(Keyword::Where)) index->where = parse_condition(cursor);
    skip_storage_options(cursor);
    return index;
}

} // namespace tsql
