// Reads JSON so that a number with a fraction stays the text it was written as.
#pragma once

#include <nlohmann/json.hpp>
#include <string_view>

namespace automation {

// Whole numbers of 64 bits become numbers; 100.10 becomes the text "100.10", and so does a whole
// number that is longer. Throws Refusal for malformed text and for nesting deeper than 32.
nlohmann::json parse_keeping_numbers(std::string_view text);

} // namespace automation
