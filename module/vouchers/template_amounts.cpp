// The amounts of a template brought to the size of the voucher at hand.
#include "module/vouchers/template_amounts.h"

namespace module {
namespace {

using Side = Amount VoucherLine::*;

Amount size_of(Amount amount) {
    return amount.is_negative() ? -amount : amount;
}

Amount total(const std::vector<VoucherLine>& lines, Side side) {
    Amount sum;
    for (const VoucherLine& line : lines) sum += line.*side;
    return sum;
}

// The total is scaled like a line, so equal totals stay equal; the largest line takes what the
// lines' own rounding left over, where it is least noticed.
void scale_side(std::vector<VoucherLine>& lines, Side side, Amount wanted, Amount base) {
    Amount left = total(lines, side).times(wanted.units(), base.units());
    VoucherLine* largest = nullptr;
    for (VoucherLine& line : lines) {
        if (!largest || size_of(line.*side) > size_of(largest->*side)) largest = &line;
    }
    for (VoucherLine& line : lines) {
        line.*side = (line.*side).times(wanted.units(), base.units());
        left -= line.*side;
    }
    if (largest) largest->*side += left;
}

} // namespace

Amount larger_side(const std::vector<VoucherLine>& lines) {
    const Amount debit = total(lines, &VoucherLine::debit);
    const Amount credit = total(lines, &VoucherLine::credit);
    return size_of(debit) >= size_of(credit) ? debit : credit;
}

std::vector<VoucherLine> scaled_to(std::vector<VoucherLine> lines, Amount wanted) {
    const Amount base = larger_side(lines);
    scale_side(lines, &VoucherLine::debit, wanted, base);
    scale_side(lines, &VoucherLine::credit, wanted, base);
    return lines;
}

} // namespace module
