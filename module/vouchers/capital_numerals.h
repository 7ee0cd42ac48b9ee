// Amounts in capital numerals, as the total of a voucher is written.
#pragma once

#include <string>

#include "host/values/amount.h"
#include "module/host_names.h"

namespace module {

// 87750.00 → "捌万柒仟柒佰伍拾元整", 1409.50 → "壹仟肆佰零玖元伍角整", 0.05 → "伍分", 0 → "零元整".
// A negative amount begins with 负. Fractions of a cent are rounded half away from zero.
std::string capital_numerals(Amount amount);

} // namespace module
