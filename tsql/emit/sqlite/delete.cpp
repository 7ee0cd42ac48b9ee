// DELETE: directly where the table stands alone, else by the ids of the rows pointed out.
#include "tsql/emit/common/quote.h"
#include "tsql/emit/sqlite/emitter.h"

namespace tsql::sqlite {

SqlText Emitter::remove(const BoundDelete& statement, bool from_copy) {
    const std::string target = stored_table(*statement.table);
    const std::string alias = alias_of(*statement.target);
    if (from_copy) {
        return finish("DELETE FROM " + target + " WHERE rowid IN (SELECT zf_rowid FROM temp." +
                      quoted_name(copy_name(*statement.table, false)) + ")");
    }
    const std::string with = with_clause(statement.with);
    if (statement.from.empty() && !statement.top) {
        std::string text = with + "DELETE FROM " + target + " AS " + alias;
        if (statement.where) {
            text += " WHERE " + condition(statement.where);
        }
        return finish(std::move(text));
    }
    return finish(with + "DELETE FROM " + target + " WHERE rowid IN (SELECT " + alias + ".rowid" +
                  rows_of(statement, statement.from, statement.target_in_from, statement.where) +
                  ")");
}

} // namespace tsql::sqlite
