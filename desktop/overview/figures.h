// The state of the books as the overview shows it.
#pragma once

#include <string>
#include <vector>

#include "host/values/amount.h"

namespace desktop {

struct MoneyAccount {
    std::string name;
    host::Amount opening, in, out;
    host::Amount closing() const { return opening + in - out; }
};

struct MonthResult {
    std::string period;   // "2016-06"
    host::Amount profit;  // income less expense of the month, before it is carried forward
};

// What stands open with customers, or suppliers; whoever has paid in advance is left out.
struct OpenBalances {
    int parties = 0;
    host::Amount sum;
};

inline constexpr int months_shown = 12;

// Vouchers count whether posted or not, so the figures are of this moment.
struct Figures {
    std::string period, first_period;      // "" when the books are not set up
    int vouchers = 0, unaudited = 0, unposted = 0; // of the period; unposted: audited, not posted
    bool carried_forward = false;          // profit and loss went into the result of the year
    std::vector<std::string> gaps;         // voucher words whose numbers are not continuous
    std::vector<MoneyAccount> money;       // leaf accounts of cash and bank
    std::vector<MonthResult> months;       // of the months_shown up to the period
    OpenBalances receivable, payable;
    std::string trouble;                   // why there are no figures; "" when there are
    // Figures are shown to those who may open a function that tells them; the others are left out.
    bool may_see_vouchers = true, may_see_money = true, may_see_result = true;
    bool may_see_receivable = true, may_see_payable = true;
};

// The current period alone; "" when there is none.
std::string read_current_period();

// Reads the figures that the person may see with a few statements; never throws for an error of the
// database.
Figures read_figures();

} // namespace desktop
