// Looks whether a month stands in the books as the story told it.
#pragma once

#include "app/demo/told_months.h"
#include "engines/session.h"

namespace app {

// A refusal that only shows a message leaves a voucher out; better no books than wrong ones. Counts
// vouchers and their states, adds up the cash-flow allocation, and compares every balance of a
// closed month with what the story knows. Throws Refusal that names what differs.
void verify_month(engines::Session& session, const ToldMonth& month);

} // namespace app
