// The order of Chinese texts as people here expect it: by pinyin.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace host {

// The rank of each text among all of them: equal ranks for texts that order the same. Latin
// letters order without regard to case and before Chinese.
std::vector<std::uint32_t> pinyin_ranks(const std::vector<std::string_view>& texts);

} // namespace host
