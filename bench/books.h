// Large sets of books to measure on: some years of vouchers, the last period not posted.
#pragma once

#include <string>
#include <vector>

#include "host/values/period.h"

namespace bench {

// 2,000 accounts in five levels, beside those of the template so that statements have figures; each
// that takes entries is opened with 1,000.00 on its own side;
// periods of 10,000 vouchers and about 40,700 lines each, all audited; every period but the last is
// posted. Books of fewer vouchers than a year fills have quiet periods of 100 vouchers, which are
// not counted, before the busy ones: in all books the last period has 10,000 vouchers and a whole
// calendar year lies before it.
struct BigBooks {
    std::string file;
    int vouchers = 0;
    host::Period first = host::Period::of(2010, 1);
    host::Period last = first;
    std::vector<std::string> leaves; // account codes that take entries
    std::string busy_account;
};

// Makes the books in `folder`, or takes the file of an earlier run. The rows are written directly
// (this is the one place that may): a million vouchers through forms would take a quarter hour.
BigBooks big_books(const std::string& folder, int vouchers);

} // namespace bench
