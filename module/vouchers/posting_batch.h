// The statements that post a period or take its posting back.
#pragma once

#include <string>

#include "host/values/period.h"
#include "module/host_names.h"

namespace module {

// Rebuilds the period's movements and closing balances of every account from its audited vouchers
// and marks these as posted. May be repeated: each run overwrites the period's balances.
std::string posting_batch(Period period);

// Clears the posted marks of the period and removes its balances.
std::string unposting_batch(Period period);

} // namespace module
