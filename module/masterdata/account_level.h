// Where an account stands in the chart, and what follows from its code.
#pragma once

#include <string>

#include "host/controls/tree_view.h"
#include "module/host_names.h"

namespace module {

// Posting adds up a chart of at most this many levels.
inline constexpr int deepest_account_level = 5;

// The profit of the current year: every carry-forward books on it, so it has no sub-accounts.
inline constexpr const char* profit_of_the_year = "3131";

// Level of an account added beside `node` (1 for a top-level account, also without a node).
inline int level_beside(const TTreeNode* node) {
    return node ? node->level() + 1 : 1;
}

// Level of a sub-account of `node`.
inline int level_below(const TTreeNode* node) {
    return level_beside(node) + 1;
}

// Only the cash and bank accounts, 1001 to 1009 with their sub-accounts, keep the cash-flow mark;
// codes compare as texts, so 10021 is one of them and 1010 is not.
inline bool may_allocate_cash_flow(const std::string& code) {
    return code < "1010";
}

} // namespace module
