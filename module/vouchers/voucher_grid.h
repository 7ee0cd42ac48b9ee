// The lines of a voucher as they stand in the grid: read, filled up, swapped, balanced.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/dataset/client_dataset.h"
#include "module/host_names.h"
#include "module/vouchers/voucher_line.h"

namespace module {

// A blank voucher shows this many lines.
inline constexpr int fewest_lines_shown = 6;

// Works on the dataset of an entry form; it owns nothing. The row edited is the dataset's current.
class VoucherGrid {
public:
    explicit VoucherGrid(TClientDataSet& lines) : lines_(lines) {}

    void define_fields();
    void append_blank_line();
    void fill_up(); // to the lines a blank voucher shows
    void post_current();
    std::vector<VoucherLine> read() const;
    VoucherLine current() const;

    Amount debit() const { return lines_.Sum("J"); }
    Amount credit() const { return lines_.Sum("D"); }
    // Debits less credits of all lines; zero when the voucher balances.
    Amount difference() const { return debit() - credit(); }

    // What the lines on cash-flow accounts add to the cash; nothing when there is no such line.
    std::optional<Amount> cash_change() const;

    // The current line's debit becomes its credit and the other way round.
    void swap_sides();
    // What the current line must carry on the side ("J" or "D") for the voucher to balance.
    Amount balancing_amount(const std::string& side) const;
    // An amount above 0 on one side leaves nothing on the other.
    void clear_opposite(const std::string& side);
    // A line still blank takes over the summary of the line above it.
    void repeat_summary_of_line_above();
    bool stands_on_last_line() const;

private:
    TClientDataSet& lines_;
};

// "借多 29250.00", "贷多 0.01", "" when it balances.
std::string difference_text(Amount difference);

} // namespace module
