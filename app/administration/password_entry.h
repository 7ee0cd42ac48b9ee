// A password that is typed twice.
#pragma once

#include "host/forms/form.h"

namespace app {

// Both fields must hold the same text; a message, the focus back on the first, and Abort()
// otherwise.
void require_same_password(host::TForm& form, host::TEdit& first, host::TEdit& again);

} // namespace app
