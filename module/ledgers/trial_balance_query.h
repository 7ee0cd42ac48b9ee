// The statement behind the trial balance.
#pragma once

#include <cstdint>
#include <string>

#include "host/values/period.h"
#include "module/host_names.h"

namespace module {

// Opening balance (B1, B2), turnover (C1, C2) and closing balance (D1, D2) of every account down to
// `level` that has figures in the period, debit before credit; BB1 to DD2 repeat them for
// top-level accounts and are 0 for the others, so that a sum over them counts nothing twice.
std::string trial_balance_query(Period period, std::int64_t level);

} // namespace module
