// A small company's books by heart: one word, March 2024 open, a handful of accounts.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "tests/support/fake_data.h"

namespace tests {

// Vouchers 记-7 (not audited) and 记-8 (audited, posted) stand in 2024-03; the next number is 9.
// Leaf accounts: 1001 现金 (cash flow), 100201 工行 under 1002 银行存款, 1131 应收帐款, 1133
// 其他应收款, 5101 主营业务收入. Templates: 10001 a sale on credit of 117, 10002 cash of 500 drawn
// from the bank.
void answer_as_small_books(FakeData& data);

// The voucher word scheme: "1", "2", "3" or "" for books that say nothing.
void answer_word_scheme(FakeData& data, const std::string& scheme);
// The current period; "" for books that were not set up.
void answer_current_period(FakeData& data, const std::string& period);
// Every voucher's cash-flow allocation: item, inflow, outflow ("<null>" for none). The items are
// 1101, 1109 and 1201.
void answer_allocation(FakeData& data, const std::vector<std::array<std::string, 3>>& amounts);
// The red vouchers that reverse any voucher asked about: period, word, number.
void answer_red_vouchers(FakeData& data, const std::vector<std::array<std::string, 3>>& vouchers);
// How the books are kept: "strict", or "" for those of a small firm.
void answer_mode(FakeData& data, const std::string& mode);

} // namespace tests
