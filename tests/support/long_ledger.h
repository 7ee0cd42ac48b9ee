// A ledger as long as wanted, for paper.
#pragma once

#include "host/printing/sheet.h"

namespace tests {

// A detailed ledger of that many rows, with its sums carried from page to page: date, voucher,
// summary, and amounts J, D, E that differ from row to row.
host::Sheet long_ledger(int rows);

} // namespace tests
