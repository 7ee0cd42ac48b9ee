// The host's own functions: users, roles, settings of the books, its log and audit.
#pragma once

#include <string>

namespace host {
class TForm;
}

namespace app {

// Opens the function of that name ("users") with `frame` as its owner; false when there is none.
// Failures of the form, a missing right among them, propagate.
bool open_administration(const std::string& name, host::TForm* frame);

} // namespace app
