// Reverses a posted voucher in red: what was booked stays in the books, and is taken back openly.
#pragma once

#include <string>
#include <vector>

#include "host/values/date.h"
#include "host/values/period.h"
#include "module/host_names.h"
#include "module/vouchers/voucher_line.h"

namespace module {

// The voucher that is reversed.
struct OriginalVoucher {
    std::string key;    // "2024-03记008"
    std::string period; // "2024-03"
    std::string word;
    std::string number; // "8"
};

// The beginning of every summary of its red voucher, which names the original with its period:
// a voucher is often reversed in a later one. "红字冲销2024-03记-8 "
std::string red_mark(const OriginalVoucher& original);

// Today while it lies in the open period, else the period's last day.
Date red_date(Period open, Date today);

// The lines in red: each amount negative on its own side, so that the turnover of both sides
// shrinks; turned round they would count the business twice. Summaries keep to 100 characters.
std::vector<VoucherLine> red_lines(const std::vector<VoucherLine>& lines, const std::string& mark);

// The lines of a saved voucher.
std::vector<VoucherLine> read_voucher_lines(const std::string& function, const std::string& key);

// The red voucher that reverses the original already, "2024-03记-9"; "" when there is none. It is
// known by its summaries.
std::string already_reversed_by(const std::string& function, const OriginalVoucher& original,
                                const std::vector<VoucherLine>& lines);

struct RedVoucher {
    std::string key;
    std::string batch; // head, lines and cash-flow allocation
};

// The red voucher of the original in the open period, with the next number of the same word.
RedVoucher red_voucher(const std::string& function, const OriginalVoucher& original,
                       const std::vector<VoucherLine>& lines, Period open, Date today,
                       const std::string& maker);

} // namespace module
