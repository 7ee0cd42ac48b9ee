// Spreading money over the open items of a party, the oldest first.
#pragma once

#include <vector>

#include "host/values/amount.h"
#include "module/host_names.h"

namespace module {

// One open item as the list shows it; a return stands there with negative amounts.
struct OpenItem {
    Amount total;    // what the document is about
    Amount settled;  // written off before
    Amount returned; // credited on the document itself
    Amount open() const { return total - settled - returned; }
};

// The share of each item, in the order given: what is open of it while the money lasts, then what
// is left of the money, then nothing. A return takes its whole negative amount and so leaves more
// for the items after it; once the money is used up it gets nothing either. Exact to the
// ten-thousandth.
//
//     spread(80.00, {{30, 0, 0}, {-10, 0, 0}, {90, 20, 0}})   // 30.00, -10.00, 60.00
std::vector<Amount> spread(Amount money, const std::vector<OpenItem>& items);

} // namespace module
