// Keeps the lines of a saved voucher as a template for later ones.
#pragma once

#include <string>

#include "module/host_names.h"

namespace module {

// Copies the lines as they are saved, not what is being typed, into a new template group (groups
// count from 10000) and tells its number. Shows why when it cannot.
void save_as_template(const std::string& function, const std::string& voucher_key);

} // namespace module
