// The trial balance of the current period as text, read off its own form.
#pragma once

#include <ostream>
#include <string>

namespace app {

// Opens the form of function 689 without a display, asks it for the current period down to `level`
// and prints its rows, its footers and whether it balances. Throws Refusal.
void print_trial_balance(const std::string& books, int level, std::ostream& out);

} // namespace app
