// Lists of field names as forms write them.
#pragma once

#include <string>
#include <vector>

namespace host {

// "B1,B2" → {"B1", "B2"}
std::vector<std::string> field_names(const std::string& list);

} // namespace host
