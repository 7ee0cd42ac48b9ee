// Blanks around a text.
#pragma once

#include <string_view>

namespace engines {

inline std::string_view without_leading_blanks(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    return text;
}

inline std::string_view without_trailing_blanks(std::string_view text) {
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

// Without blanks, tabs and line ends on both sides, as conversions to numbers ignore them.
inline std::string_view without_blanks(std::string_view text) {
    const auto blank = [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); };
    while (!text.empty() && blank(text.front())) text.remove_prefix(1);
    while (!text.empty() && blank(text.back())) text.remove_suffix(1);
    return text;
}

} // namespace engines
