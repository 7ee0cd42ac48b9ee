// Demonstration books: a small trading company, one month of vouchers.
#pragma once

#include <string>

namespace app {

// Creates the books and fills them as a person would, through the module's own forms: accounts in
// the chart, vouchers one by one, part of them audited and posted. A failure leaves nothing.
// password: of the user admin, "" for none. Throws Refusal.
void create_demo_books(const std::string& books, const std::string& password);

} // namespace app
