// Patterns of LIKE and PATINDEX.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace engines {

// % any characters, _ one, [a-z] one of a set, [^a-z] one outside it; the character after escape
// stands for itself. Letters are compared without case and width unless exactly is set. Trailing
// blanks of the pattern count; those of the text may be left over.
bool like(std::string_view text, std::string_view pattern, std::optional<char32_t> escape,
          bool exactly = false);

// Place of the first character where the pattern matches, counted from 1; 0 when it does not.
std::int64_t patindex(std::string_view pattern, std::string_view text);

} // namespace engines
