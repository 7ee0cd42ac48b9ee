// The calls of the ledger procedures, word for word.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "module/host_names.h"

namespace module {

// Which ledger is asked for. Periods are "2024-03"; `first` and `last` lie in one year. Texts go
// into the call as they are, quoted.
//
//     {.before = "2015-12", .show = "1", .first_account = "1001", .last_account = "1009",
//      .first = "2016-01", .last = "2016-03"}
struct LedgerCall {
    std::string before; // the period before `first`
    std::string show;   // "1" leaves out: unposted vouchers, or accounts without turnover
    std::string first_account;
    // Without a last account: the journal of the first one, which names the accounts on the other
    // side of each line.
    std::optional<std::string> last_account;
    std::string first, last; // periods
};

std::string detailed_ledger_call(const LedgerCall& call);
// Down to account level `level`, 1 to 5.
std::string general_ledger_call(const LedgerCall& call, std::int64_t level);

// One account of one period, posted vouchers only: what a balance in another book is made of. The
// period itself stands where the period before it stands elsewhere.
LedgerCall account_in_period(const std::string& account, const std::string& period);

} // namespace module
