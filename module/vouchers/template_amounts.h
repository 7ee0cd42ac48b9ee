// The amounts of a template brought to the size of the voucher at hand.
#pragma once

#include <vector>

#include "host/values/amount.h"
#include "module/host_names.h"
#include "module/vouchers/voucher_line.h"

namespace module {

// The larger of the debit and the credit total, in size; with its sign.
Amount larger_side(const std::vector<VoucherLine>& lines);

// The lines in the same proportions, with `wanted` as the total of the larger side; each keeps its
// side. Amounts are rounded to the cent; what the rounding leaves over on a side goes to the
// largest line of that side, so that a template that balances gives a voucher that balances.
// The larger side must not be 0.
//
//     J 100, J 200 | D 300   wanted 100   →   J 33.33, J 66.67 | D 100.00
std::vector<VoucherLine> scaled_to(std::vector<VoucherLine> lines, Amount wanted);

} // namespace module
