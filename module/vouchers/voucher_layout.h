// How the voucher stands on the screen, and what it suggests while an account or summary is typed.
#pragma once

#include <string>
#include <vector>

#include "host/controls/grid.h"
#include "host/layout/layout.h"
#include "module/host_names.h"

namespace module {

class LeafAccounts;
class TF6661_1;

std::vector<GridColumn> voucher_columns();
LayoutNode voucher_layout(TF6661_1& form);

// Code, name, pinyin, side and balance of the accounts that fit.
std::vector<TDBGridEh::Suggestion> suggest_accounts(const LeafAccounts& accounts,
                                                    const std::string& typed);
// Common summaries whose text or pinyin fits.
std::vector<TDBGridEh::Suggestion> suggest_summaries(const std::string& function,
                                                     const std::string& typed);

} // namespace module
