// Walks two texts at once; bytes that agree are skipped without being decoded.
#include "engines/sqlite/collation/compare_text.h"

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
        if (text.ends_with(' ')) text.remove_suffix(1);
        else if (text.ends_with("\xE3\x80\x80")) text.remove_suffix(3);
        else return text;
    }
}

}  // namespace

std::uint32_t rank_of(char32_t character) {
    return character < 0x10000 ? text_order[character]
                               : 0x10000 + static_cast<std::uint32_t>(character);
}

int compare_text(std::string_view left, std::string_view right) {
    left = trimmed_end(left);
    right = trimmed_end(right);
    const std::size_t shorter = left.size() < right.size() ? left.size() : right.size();
    std::size_t place = 0;
    while (place < shorter && left[place] == right[place]) ++place;
    if (place == left.size() && place == right.size()) return 0;
    std::size_t at_left = start_of_character(left, place);
    std::size_t at_right = start_of_character(right, place);
    // Stepping back must land on the same place in both, or the beginnings were not equal.
    if (at_left != at_right) at_left = at_right = at_left < at_right ? at_left : at_right;
    while (at_left < left.size() && at_right < right.size()) {
        const std::uint32_t a = rank_of(next_character(left, at_left));
        const std::uint32_t b = rank_of(next_character(right, at_right));
        if (a != b) return a < b ? -1 : 1;
    }
    return static_cast<int>(at_left < left.size()) - static_cast<int>(at_right < right.size());
}

int compare_text_exactly(std::string_view left, std::string_view right) {
    while (left.ends_with(' ')) left.remove_suffix(1);
    while (right.ends_with(' ')) right.remove_suffix(1);
    const int order = left.compare(right);
    return (order > 0) - (order < 0);
}

}  // namespace engines
