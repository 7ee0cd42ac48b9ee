// Walks two texts at once; bytes that agree are skipped without being decoded.
#include "engines/sqlite/collation/compare_text.h"

#include <algorithm>
#include <cstring>

#include "engines/sqlite/collation/text_order.h"
#include "engines/sqlite/text/utf8.h"

namespace engines {
namespace {

// Moves back to the first byte of the character that holds the byte at place.
std::size_t start_of_character(std::string_view text, std::size_t place) {
    while (place > 0 && place < text.size() &&
           (static_cast<unsigned char>(text[place]) & 0xC0) == 0x80)
        --place;
    return place;
}

// A full-width blank is a blank, so it is left out at the end as well.
std::string_view trimmed_end(std::string_view text) {
    for (;;) {
        if (text.ends_with(' '))
            text.remove_suffix(1);
        else if (text.ends_with("\xE3\x80\x80"))
            text.remove_suffix(3);
        else
            return text;
    }
}

// ASCII but for the blank.
bool is_plain(char byte) {
    return static_cast<unsigned char>(byte) < 0x80 && byte != ' ';
}

// Number of bytes at the beginning that are the same in both.
std::size_t agreement(const char* left, const char* right, std::size_t size) {
    std::size_t place = 0;
    for (; place + sizeof(std::uint64_t) <= size; place += sizeof(std::uint64_t)) {
        std::uint64_t a = 0;
        std::uint64_t b = 0;
        std::memcpy(&a, left + place, sizeof a);
        std::memcpy(&b, right + place, sizeof b);
        if (a != b) break;
    }
    if (place + sizeof(std::uint32_t) <= size) {
        std::uint32_t a = 0;
        std::uint32_t b = 0;
        std::memcpy(&a, left + place, sizeof a);
        std::memcpy(&b, right + place, sizeof b);
        if (a == b) place += sizeof a;
    }
    while (place < size && left[place] == right[place]) ++place;
    return place;
}

// Compares from the character that holds the byte at place; what stands before it is the same.
int compare_characters(std::string_view left, std::string_view right, std::size_t place) {
    const std::size_t start = std::min({place, left.size(), right.size()});
    std::size_t at_left = start_of_character(left, start);
    std::size_t at_right = start_of_character(right, start);
    // Stepping back must land on the same place in both, or the beginnings were not equal.
    if (at_left != at_right) at_left = at_right = std::min(at_left, at_right);
    while (at_left < left.size() && at_right < right.size()) {
        const std::uint32_t a = rank_of(next_character(left, at_left));
        const std::uint32_t b = rank_of(next_character(right, at_right));
        if (a != b) return a < b ? -1 : 1;
    }
    return static_cast<int>(at_left < left.size()) - static_cast<int>(at_right < right.size());
}

} // namespace

std::uint32_t rank_of(char32_t character) {
    return character < 0x10000 ? text_order[character]
                               : 0x10000 + static_cast<std::uint32_t>(character);
}

int compare_text(std::string_view left, std::string_view right) {
    const std::size_t shorter = left.size() < right.size() ? left.size() : right.size();
    const std::size_t place = agreement(left.data(), right.data(), shorter);
    if (place == shorter && left.size() == right.size()) return 0;
    // A code that goes on with a digit or letter follows the one it begins with.
    if (place == shorter && is_plain(left.size() > shorter ? left[place] : right[place]))
        return left.size() < right.size() ? -1 : 1;
    // Most texts of the books differ in a digit or a letter of ASCII, with nothing to decode. A
    // blank might be one of those at the end that do not count.
    if (place < shorter && is_plain(left[place]) && is_plain(right[place])) {
        const std::uint16_t a = text_order[static_cast<unsigned char>(left[place])];
        const std::uint16_t b = text_order[static_cast<unsigned char>(right[place])];
        if (a != b) return a < b ? -1 : 1;
    }
    return compare_characters(trimmed_end(left), trimmed_end(right), place);
}

int compare_text_exactly(std::string_view left, std::string_view right) {
    while (left.ends_with(' ')) left.remove_suffix(1);
    while (right.ends_with(' ')) right.remove_suffix(1);
    const int order = left.compare(right);
    return (order > 0) - (order < 0);
}

} // namespace engines
