// Looks whether a month stands in the books as the story told it.
#pragma once

#include <string>

#include "app/demo/told_months.h"
#include "engines/session.h"

namespace app {

// A refusal that only shows a message leaves a voucher out; better no books than wrong ones. Counts
// vouchers and their states, adds up the cash-flow allocation, and compares every balance of a
// closed month with what the story knows. Throws Refusal that names what differs.
void verify_month(engines::Session& session, const ToldMonth& month);

// Throws Refusal that names `what` unless the books hold what the story told of it.
void verify_text(const ToldMonth& month, const std::string& what, const std::string& found,
                 const std::string& told);

} // namespace app
