// One page of a printed voucher.
#pragma once

#include "module/vouchers/voucher_paper.h"

namespace module {

// Page `page` of `pages` of the voucher. The last page totals all its lines; unused lines of the
// amount columns are crossed out there, so that nothing can be written into them later.
PaperPage voucher_page(const PaperVoucher& voucher, int page, int pages,
                       const std::string& company, const std::string& moment);

} // namespace module
