// What a character may be part of, and where the next one begins in UTF-8.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace tsql {

enum class CharacterClass : std::uint8_t { Other, Blank, Letter, Digit, Sign, Wide };

// The class of a byte; Wide is any byte of a character outside ASCII.
constexpr std::array<CharacterClass, 256> character_classes = [] {
    std::array<CharacterClass, 256> classes{};
    for (int c = 0; c < 256; ++c) {
        const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
                            c == '#' || c == '@' || c == '$';
        if (letter)
            classes[c] = CharacterClass::Letter;
        else if (c >= '0' && c <= '9')
            classes[c] = CharacterClass::Digit;
        else if (c == ' ' || (c >= '\t' && c <= '\r'))
            classes[c] = CharacterClass::Blank;
        else if (c >= 0x80)
            classes[c] = CharacterClass::Wide;
        else if (c > ' ' && c < 0x7F)
            classes[c] = CharacterClass::Sign;
    }
    return classes;
}();

inline CharacterClass class_of(char c) {
    return character_classes[static_cast<unsigned char>(c)];
}

// Length in bytes of the UTF-8 character at the start of `text`, 0 when it is broken: cut short,
// overlong, a surrogate or beyond U+10FFFF.
inline int utf8_length(std::string_view text) {
    const auto byte = [&](std::size_t i) {
        return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
    };
    const auto follows = [&](std::size_t i) { return (byte(i) & 0xC0U) == 0x80U; };
    const unsigned lead = byte(0);
    if (lead < 0x80) return text.empty() ? 0 : 1;
    if (lead < 0xC2) return 0;
    if (lead < 0xE0) return follows(1) ? 2 : 0;
    if (lead < 0xF0) {
        const bool proper = !(lead == 0xE0 && byte(1) < 0xA0) && !(lead == 0xED && byte(1) > 0x9F);
        return proper && follows(1) && follows(2) ? 3 : 0;
    }
    if (lead > 0xF4) return 0;
    const bool proper = !(lead == 0xF0 && byte(1) < 0x90) && !(lead == 0xF4 && byte(1) > 0x8F);
    return proper && follows(1) && follows(2) && follows(3) ? 4 : 0;
}

// A blank outside ASCII: no-break, em and ideographic spaces, the byte order mark.
inline bool is_wide_blank(std::string_view character) {
    return character == "\u3000" || character == "\u00A0" || character == "\uFEFF" ||
           (character >= std::string_view("\u2000") && character <= std::string_view("\u200B"));
}

// Punctuation outside ASCII, which is part of no name: a full-width comma between two columns is a
// slip of the keyboard and not one long name.
inline bool is_wide_sign(std::string_view character) {
    const auto between = [&](std::string_view first, std::string_view last) {
        return character.size() == first.size() && character >= first && character <= last;
    };
    return between("\u00A1", "\u00A9") || between("\u00AB", "\u00B4") ||
           between("\u00B6", "\u00B9") || between("\u00BB", "\u00BF") || character == "\u00D7" ||
           character == "\u00F7" || between("\u2010", "\u203E") || between("\u2190", "\u2BFF") ||
           between("\u3001", "\u3004") || between("\u3008", "\u3020") ||
           between("\uFF01", "\uFF0F") || between("\uFF1A", "\uFF20") ||
           between("\uFF3B", "\uFF3E") || character == "\uFF40" || between("\uFF5B", "\uFF65");
}

} // namespace tsql
