// The roles that new books begin with.
#pragma once

#include <string>

namespace app {

// The batch that puts them into empty role tables. Which role may what stands in a table that a
// bookkeeper can read.
std::string standard_roles_batch();

} // namespace app
