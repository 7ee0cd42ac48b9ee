// DELETE: the rows of a table, or those of it that other tables point out.
#include "tsql/binder/binder.h"

namespace tsql {

BoundDelete Binder::bind_delete(const Delete& statement) {
    BoundDelete bound;
    Scope scope;
    bind_with(statement.with, scope, bound.with, std::nullopt);
    BoundPtr view_condition;
    bound.target_in_from =
        find_target(statement.target, statement.from, scope, bound, bound.from, view_condition);
    bound.where = bind_rest(statement, view_condition, scope, bound, DmlKind::Delete);
    return bound;
}

} // namespace tsql
