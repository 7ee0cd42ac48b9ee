// Characters of UTF-8 text: one code point counts as one character.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace engines {

// The character at place, and place moved behind it. A byte that begins no character stands for
// itself, above all valid characters, so that damaged text still compares and measures.
inline char32_t next_character(std::string_view text, std::size_t& place) {
    const auto byte = [&](std::size_t at) {
        return static_cast<char32_t>(static_cast<unsigned char>(text[at]));
    };
    const auto continues = [&](std::size_t at) {
        return at < text.size() && (byte(at) & 0xC0) == 0x80;
    };
    const std::size_t at = place;
    const char32_t first = byte(at);
    if (first < 0x80) {
        place = at + 1;
        return first;
    }
    if (first >= 0xC2 && first < 0xE0 && continues(at + 1)) {
        place = at + 2;
        return (first & 31) << 6 | (byte(at + 1) & 63);
    }
    if (first >= 0xE0 && first < 0xF0 && continues(at + 1) && continues(at + 2)) {
        place = at + 3;
        return (first & 15) << 12 | (byte(at + 1) & 63) << 6 | (byte(at + 2) & 63);
    }
    if (first >= 0xF0 && first < 0xF5 && continues(at + 1) && continues(at + 2) &&
        continues(at + 3)) {
        place = at + 4;
        return (first & 7) << 18 | (byte(at + 1) & 63) << 12 | (byte(at + 2) & 63) << 6 |
               (byte(at + 3) & 63);
    }
    place = at + 1;
    return 0x110000 + first;
}

// Number of characters.
std::size_t character_count(std::string_view text);

// Byte place of the character of that number, counted from 0; the end when there are fewer.
std::size_t byte_place(std::string_view text, std::size_t characters);

void append_character(char32_t character, std::string& out);

} // namespace engines
