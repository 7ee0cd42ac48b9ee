// Requests as nobody sane would send them, chosen from what the open forms really show.
#pragma once

#include <nlohmann/json.hpp>
#include <random>
#include <string>
#include <vector>

#include "tests/support/person.h"

namespace tests {

// The same requests in every run for the same seed. Most name a control, field or row that exists;
// some are missing members, name what does not exist, or carry hostile texts.
class RandomRequests {
public:
    RandomRequests(std::uint32_t seed, std::vector<int> functions);
    nlohmann::json next(Person& person); // asks the person which controls there are

private:
    int below(int limit);
    const std::string& one_of(const std::vector<std::string>& texts);
    std::string text();
    nlohmann::json acting(const nlohmann::json& control);
    nlohmann::json on_grid(const nlohmann::json& grid);

    std::mt19937 chance_;
    std::vector<int> functions_;
};

} // namespace tests
