// What the ledger procedures answer about a small company's March 2024, for tests without books.
#pragma once

#include "tests/support/fake_data.h"

namespace tests {

// SYS_685. 1001 现金: opening 100.00, voucher 记-7 of 585.00 in, 记-8 of 700.00 out, two totals;
// 1131 应收帐款-东方: opening, 记-7 of 585.00 on the credit side, two totals. Rows 0 to 4 and 5 to
// 8; the lines stand in rows 1, 2 and 6.
void answer_detailed_ledger(FakeData& data);

// SYS_686. 1001 现金 in 2024-02 (rows 0 to 2) and 2024-03 (rows 3 to 5), 1131 应收帐款 in 2024-03
// (rows 6 to 8).
void answer_general_ledger(FakeData& data);

// The cash and bank accounts: 1001 现金, 100201 工行.
void answer_cash_accounts(FakeData& data);

} // namespace tests
