// Keeping sums of columns.
#include "host/dataset/running_sums.h"

#include <limits>
#include <stdexcept>

namespace host {

const RunningSums::Wide* RunningSums::find(int field) const {
    const auto at = sums_.find(field);
    return at == sums_.end() ? nullptr : &at->second;
}

void RunningSums::add(int field, std::int64_t difference) {
    const auto at = sums_.find(field);
    if (at != sums_.end()) at->second += difference;
}

Amount RunningSums::to_amount(Wide total, bool whole_numbers) {
    if (whole_numbers) total *= Amount::scale;
    if (total > std::numeric_limits<std::int64_t>::max() ||
        total < std::numeric_limits<std::int64_t>::min())
        throw std::overflow_error("合计超出可以记录的范围");
    return Amount::from_units(static_cast<std::int64_t>(total));
}

} // namespace host
