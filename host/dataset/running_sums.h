// Sums over the rows in view, computed once and then kept up to date cell by cell.
#pragma once

#include <cstdint>
#include <map>

#include "host/values/amount.h"

namespace host {

// In ten-thousandths for amounts, in whole numbers for integers. Wide enough that no sum of rows
// bends; only asking for one that no amount can hold throws.
class RunningSums {
public:
    __extension__ typedef __int128 Wide;

    void forget() { sums_.clear(); }
    const Wide* find(int field) const;
    void remember(int field, Wide total) { sums_[field] = total; }
    void add(int field, std::int64_t difference);
    bool empty() const { return sums_.empty(); }
    static Amount to_amount(Wide total, bool whole_numbers);

private:
    std::map<int, Wide> sums_;
};

} // namespace host
