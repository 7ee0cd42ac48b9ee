// What must be true of a voucher's lines before it is saved.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/values/amount.h"
#include "host/values/text.h"
#include "module/host_names.h"

namespace module {

// A line as typed.
struct VoucherLine {
    std::string summary;
    std::string account;
    Amount debit;
    Amount credit;

    bool has_summary() const { return !trimmed(summary).empty(); }
    bool has_account() const { return !trimmed(account).empty(); }
    bool has_amount() const { return !debit.is_zero() || !credit.is_zero(); }
    // Moves an account, or means to: a line without a summary stays out of the books, and a summary
    // alone is a remark.
    bool is_booked() const { return has_summary() && (has_account() || has_amount()); }
};

struct LineRefusal {
    std::string message;
    int line = -1; // position of the line it is about; -1 for the voucher as a whole
};

// Why the voucher cannot be saved; nothing when it can. The last faulty line is named first.
//
//     {"收货款", "1002", 100, 0}, {"收货款", "1131", 0, 99.99}   →   借贷不平衡!
std::optional<LineRefusal> why_not_saved(const std::vector<VoucherLine>& lines);

// The lines with a summary, remarks among them. A summary that only repeats the line above is none:
// Enter puts it into the line that the bookkeeper did not go on with.
std::vector<VoucherLine> lines_to_save(const std::vector<VoucherLine>& lines);

} // namespace module
