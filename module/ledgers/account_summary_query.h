// The statements behind the account summary.
#pragma once

#include <string>

#include "module/host_names.h"

namespace module {

// How many vouchers fit the condition on D6601 (A), and how many attachments they have (B).
std::string count_query(const std::string& condition);

// Debits (J) and credits (D) of the vouchers that fit, a row a top-level account: the first four
// characters of the codes. A code of four that no account has drops out.
std::string account_summary_query(const std::string& condition);

} // namespace module
