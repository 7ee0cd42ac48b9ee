// Counting and writing characters of UTF-8 text.
#include "engines/sqlite/text/utf8.h"

namespace engines {

std::size_t character_count(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t place = 0; place < text.size(); ++count) next_character(text, place);
    return count;
}

std::size_t byte_place(std::string_view text, std::size_t characters) {
    std::size_t place = 0;
    while (characters > 0 && place < text.size()) {
        next_character(text, place);
        --characters;
    }
    return place;
}

void append_character(char32_t character, std::string& out) {
    const auto put = [&](char32_t byte) { out += static_cast<char>(byte); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | character >> 6);
        put(0x80 | (character & 63));
    } else if (character < 0x10000) {
        put(0xE0 | character >> 12);
        put(0x80 | (character >> 6 & 63));
        put(0x80 | (character & 63));
    } else if (character < 0x110000) {
        put(0xF0 | character >> 18);
        put(0x80 | (character >> 12 & 63));
        put(0x80 | (character >> 6 & 63));
        put(0x80 | (character & 63));
    } else {
        put(character - 0x110000);
    }
}

} // namespace engines
