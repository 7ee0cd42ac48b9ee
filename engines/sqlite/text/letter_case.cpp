// Case pairs by ranges of the alphabets that books in use hold: Latin, Greek, Cyrillic, full width.
#include "engines/sqlite/text/letter_case.h"

#include "engines/sqlite/text/utf8.h"

namespace engines {
namespace {

// Upper-case letters from first to last; their lower-case letters are step further on, or the next
// character when the two alternate.
struct Range {
    char32_t first;
    char32_t last;
    int step;
    bool alternating;
};
constexpr Range ranges[] = {
    {'A', 'Z', 32, false},       {0xC0, 0xD6, 32, false},     {0xD8, 0xDE, 32, false},
    {0x100, 0x12E, 1, true},     {0x132, 0x136, 1, true},     {0x139, 0x147, 1, true},
    {0x14A, 0x176, 1, true},     {0x179, 0x17D, 1, true},     {0x1CD, 0x1DB, 1, true},
    {0x1DE, 0x1EE, 1, true},     {0x1F8, 0x21E, 1, true},     {0x391, 0x3A1, 32, false},
    {0x3A3, 0x3AB, 32, false},   {0x400, 0x40F, 80, false},   {0x410, 0x42F, 32, false},
    {0x460, 0x480, 1, true},     {0x48A, 0x4BE, 1, true},     {0x531, 0x556, 48, false},
    {0x1E00, 0x1E94, 1, true},   {0x1EA0, 0x1EFE, 1, true},   {0x2160, 0x216F, 16, false},
    {0x24B6, 0x24CF, 26, false}, {0xFF21, 0xFF3A, 32, false}, {0x10400, 0x10427, 40, false},
};

std::string mapped(std::string_view text, char32_t (*map)(char32_t)) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t place = 0; place < text.size();)
        append_character(map(next_character(text, place)), out);
    return out;
}

} // namespace

char32_t lower_case(char32_t character) {
    for (const Range& range : ranges) {
        if (character < range.first || character > range.last) continue;
        if (range.alternating && (character - range.first) % 2 != 0) return character;
        return character + static_cast<char32_t>(range.step);
    }
    return character;
}

char32_t upper_case(char32_t character) {
    for (const Range& range : ranges) {
        const auto step = static_cast<char32_t>(range.step);
        if (character < range.first + step || character > range.last + step) continue;
        if (range.alternating && (character - range.first - step) % 2 != 0) continue;
        return character - step;
    }
    return character;
}

std::string upper_case(std::string_view text) {
    return mapped(text, upper_case);
}
std::string lower_case(std::string_view text) {
    return mapped(text, lower_case);
}

} // namespace engines
