// Whether two expressions say the same: an item of a grouped list must be a grouping expression.
#pragma once

#include "tsql/binder/bound_query.h"

#include <set>
#include <vector>

namespace tsql {

// Literals are compared by value; the ordinals of those compared are added to `pinned`, because a
// text with other values may give another answer. Subqueries are never the same.
bool same_expression(const BoundPtr& left, const BoundPtr& right, std::set<int>* pinned);

// The direct operands of an expression, null where one is left out; subqueries are leaves.
std::vector<BoundPtr> parts_of(const BoundExpression& node);

} // namespace tsql
