// What a lookup column or edit offers while a person types.
#pragma once

#include <string>
#include <vector>

namespace host {

struct Suggestion {
    std::string value;              // goes into the cell or edit when chosen
    std::vector<std::string> cells; // shown: code, name, pinyin, side, balance
    std::string key;                // the code meant; empty where any text may stand
};

} // namespace host
