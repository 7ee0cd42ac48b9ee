// Finding and replacing text as the collation compares it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace engines {

// CHARINDEX: place of the first occurrence at or after the character start, both from 1; 0 when
// there is none. Without case and width.
std::int64_t charindex(std::string_view what, std::string_view text, std::int64_t start);

// REPLACE: every occurrence, without case and width. An empty what changes nothing.
std::string replace(std::string_view text, std::string_view what, std::string_view by);

} // namespace engines
