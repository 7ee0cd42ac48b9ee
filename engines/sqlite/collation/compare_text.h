// Comparison of texts as the server's Chinese collation does it.
#pragma once

#include <cstdint>
#include <string_view>

namespace engines {

// Less than, equal to or greater than zero. Ignores case, full or half width and trailing blanks;
// orders Chinese by pinyin. A text that is the beginning of another comes first.
//
// Example: compare_text("abc  ", "ＡBC") == 0; compare_text("a", "中") < 0.
int compare_text(std::string_view left, std::string_view right);

// The same by code points, telling every character apart but for trailing blanks.
int compare_text_exactly(std::string_view left, std::string_view right);

// A number that is equal for two characters exactly when the collation takes them as equal.
std::uint32_t rank_of(char32_t character);

} // namespace engines
