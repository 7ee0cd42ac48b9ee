// The story as requests to the driver: what a person would type to enter it.
#pragma once

#include <nlohmann/json.hpp>
#include <vector>

#include "app/demo/story.h"

namespace app {

// Accounts into the chart, vouchers one by one, audit, posting, the rest of the audit.
std::vector<nlohmann::json> typed(const Story& story);

} // namespace app
