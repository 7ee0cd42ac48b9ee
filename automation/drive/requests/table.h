// All requests by name.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace automation {

class Driver;
class Request;

// Carries out the request that "op" names. Throws Refusal, also for a name that is not known.
nlohmann::json carry_out(Driver& driver, const Request& request);

std::vector<std::string> request_names();

} // namespace automation
