// The syntax tree as text, for tests and for those who want to see how a statement was read.
#pragma once

#include "tsql/syntax/statement.h"

#include <string>

namespace tsql {

// One form a statement, in parentheses, broken over lines where it grows past a page's width:
//
//     SELECT K AS x FROM A WHERE ID = 1
//     (select (item K as x) (from A) (where (= ID 1)))
//
// Columns and tables are bare, text literals in quotes, operators come first.
std::string tree_text(const Batch& batch);
std::string tree_text(const Expression& expression);

} // namespace tsql
