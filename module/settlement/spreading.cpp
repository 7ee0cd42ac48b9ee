// Spreading money over the open items of a party, the oldest first.
#include "module/settlement/spreading.h"

#include <algorithm>

namespace module {

std::vector<Amount> spread(Amount money, const std::vector<OpenItem>& items) {
    std::vector<Amount> shares;
    for (const OpenItem& item : items) {
        const Amount share = money.is_zero() ? Amount() : std::min(item.open(), money);
        shares.push_back(share);
        money -= share;
    }
    return shares;
}

} // namespace module
