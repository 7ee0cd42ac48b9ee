// One item written off by a receipt or payment: its sign, and the sum over all of them.
#include "module/settlement/write_off.h"

namespace module {

namespace {

constexpr std::int64_t over_receipt_scale = 10'000;
constexpr int over_receipt_decimals = 4;

} // namespace

bool sign_fits(const WriteOff& line) {
    const Amount nothing;
    return !(line.total > nothing && line.share < nothing) &&
           !(line.total < nothing && line.share > nothing);
}

int first_wrong_sign(const std::vector<WriteOff>& lines) {
    for (std::size_t line = 0; line < lines.size(); ++line)
        if (!sign_fits(lines[line])) return static_cast<int>(line);
    return -1;
}

Amount sum_of_shares(const std::vector<WriteOff>& lines) {
    Amount sum;
    for (const WriteOff& line : lines) sum += line.share;
    return sum;
}

Amount over_receipt_with(Amount so_far, Amount category) {
    const Amount scaled = so_far.times(over_receipt_scale, 1, over_receipt_decimals) + category;
    return scaled.times(1, over_receipt_scale, over_receipt_decimals);
}

} // namespace module
