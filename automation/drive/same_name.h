// Names of forms, controls and fields are compared without regard to the case of Latin letters.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace automation {

inline char upper_letter(char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

inline bool same_name(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return upper_letter(x) == upper_letter(y); });
}

// "km_id" → "KM_ID", as rows and footers name their fields.
inline std::string upper_name(std::string name) {
    std::transform(name.begin(), name.end(), name.begin(), upper_letter);
    return name;
}

} // namespace automation
