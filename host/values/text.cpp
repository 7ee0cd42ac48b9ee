// Texts as people count them: decoding, cutting, comparing.
#include "host/values/text.h"

#include <algorithm>

namespace host {

namespace {

constexpr char32_t replacement = 0xFFFD;

struct Decoded {
    char32_t character;
    std::size_t length;
    bool well_formed;
};

// One character at `at`; a byte that cannot be part of one stands alone.
Decoded decode(std::string_view text, std::size_t at) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(at);
    if (lead < 0x80) return {lead, 1, true};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC2 ? 2 : 0;
    if (length == 0 || lead > 0xF4 || at + length > text.size()) return {replacement, 1, false};
    char32_t character = lead & (0xFF >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(at + i) & 0xC0) != 0x80) return {replacement, 1, false};
        character = (character << 6) | (byte(at + i) & 0x3F);
    }
    static constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    if (character < smallest[length] || character > 0x10FFFF || surrogate)
        return {replacement, 1, false};
    return {character, length, true};
}

char upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

bool same_letter(char a, char b) { return upper(a) == upper(b); }

} // namespace

std::size_t character_count(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); ++count) at += decode(text, at).length;
    return count;
}

std::string first_characters(std::string_view text, std::size_t count) {
    std::size_t at = 0;
    for (; at < text.size() && count > 0; --count) at += decode(text, at).length;
    return std::string(text.substr(0, at));
}

std::u32string to_characters(std::string_view text) {
    std::u32string characters;
    characters.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const Decoded decoded = decode(text, at);
        characters.push_back(decoded.character);
        at += decoded.length;
    }
    return characters;
}

std::string to_utf8(char32_t character) { return to_utf8(std::u32string_view(&character, 1)); }

std::string to_utf8(std::u32string_view characters) {
    std::string text;
    text.reserve(characters.size() * 3);
    const auto put = [&](char32_t bits) { text.push_back(static_cast<char>(bits)); };
    for (char32_t c : characters) {
        if (c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) c = replacement;
        if (c < 0x80) {
            put(c);
            continue;
        }
        if (c < 0x800) {
            put(0xC0 | (c >> 6));
        } else if (c < 0x10000) {
            put(0xE0 | (c >> 12));
            put(0x80 | ((c >> 6) & 0x3F));
        } else {
            put(0xF0 | (c >> 18));
            put(0x80 | ((c >> 12) & 0x3F));
            put(0x80 | ((c >> 6) & 0x3F));
        }
        put(0x80 | (c & 0x3F));
    }
    return text;
}

std::optional<std::size_t> first_unprintable(std::string_view text, bool several_lines) {
    std::size_t position = 1;
    for (std::size_t at = 0; at < text.size(); ++position) {
        const Decoded decoded = decode(text, at);
        const char32_t c = decoded.character;
        const bool line_end = several_lines && (c == '\n' || c == '\t' || c == '\r');
        const bool control = c < 0x20 || (c >= 0x7F && c < 0xA0);
        if (!decoded.well_formed || (control && !line_end)) return position;
        at += decoded.length;
    }
    return std::nullopt;
}

std::string trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string upper_case(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), upper);
    return result;
}

bool same_text(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), same_letter);
}

bool contains_text(std::string_view whole, std::string_view part) {
    return std::search(whole.begin(), whole.end(), part.begin(), part.end(), same_letter) !=
               whole.end() ||
           part.empty();
}

bool starts_with_text(std::string_view whole, std::string_view part) {
    return whole.size() >= part.size() && same_text(whole.substr(0, part.size()), part);
}

std::string replaced(std::string_view text, std::string_view what, std::string_view by) {
    std::string result;
    std::size_t from = 0;
    while (!what.empty()) {
        const auto at = text.find(what, from);
        if (at == std::string_view::npos) break;
        result.append(text.substr(from, at - from)).append(by);
        from = at + what.size();
    }
    return result.append(text.substr(from));
}

} // namespace host
