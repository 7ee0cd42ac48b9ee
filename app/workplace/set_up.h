// Opens fresh books at a period, as a person would.
#pragma once

#include <string>

#include "app/login/login.h"
#include "host/values/period.h"

namespace app {

// Tests and posts the opening figures of the chart (nought in fresh books) through the module's own
// forms, as the administrator. The books begin on the first day of `start`. Throws Refusal; the
// books are then not set up.
void set_up_books(const std::string& books, const host::Period& start,
                  const PasswordSource& password);

} // namespace app
