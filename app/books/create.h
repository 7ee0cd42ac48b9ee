// Makes a new set of books.
#pragma once

#include <string>

#include "host/ports/surroundings.h"

namespace app {

// What new books are to be. The administrator is the user "admin".
struct NewBooks {
    std::string books;     // where
    std::string company;
    std::string template_name;              // of schema/schema.h
    int scheme = 1;                         // voucher words: 1 记, 2 收 付 转, 3 现收 现付 银收 银付 转
    std::string mode = "small";             // or "strict": corrections in red only
    std::string password_hash;              // of app/login/password.h; "" for no password
};

// Every table, view, procedure and trigger, the template's rows, the user, in one transaction in a
// file beside the target, which gets its name at the end: a creation that fails leaves nothing. The
// books wait to be set up: vouchers can be entered once their opening figures were posted.
// Throws Refusal; books that exist are never touched.
void create_books(const NewBooks& wanted, const host::Clock& clock);

} // namespace app
