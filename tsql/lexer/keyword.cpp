// Keywords are found by a hash table laid out when the program is compiled.
#include "tsql/lexer/keyword.h"

#include <array>

namespace tsql {

namespace {

struct Entry {
    std::string_view word;
    bool reserved;
};

constexpr Entry entries[] = {
    {"", false},
#define TSQL_KEYWORD(id, word, reserved) {word, reserved},
#include "tsql/lexer/keywords.inc"
#undef TSQL_KEYWORD
};
constexpr std::size_t entry_count = sizeof entries / sizeof entries[0];
static_assert(entry_count < 256, "a keyword is one byte");

constexpr std::size_t longest_word = 17; // CURRENT_TIMESTAMP
constexpr unsigned slot_bits = 10;
constexpr std::size_t slot_count = std::size_t{1} << slot_bits;
static_assert(slot_count > 3 * entry_count, "a sparse table keeps the probes short");

constexpr char to_upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
}

// Length and four of its letters tell a keyword from nearly every other word: names are looked up
// far more often than keywords, and need not be read to their end. Masking a letter's case off is
// enough for a hash.
constexpr std::size_t slot_of(std::string_view word) {
    const auto letter = [&](std::size_t at) {
        return static_cast<std::uint32_t>(static_cast<unsigned char>(word[at])) & 0x1FU;
    };
    const std::size_t size = word.size();
    const std::uint32_t letters = letter(0) | letter(1) << 5 | letter(size / 2) << 10 |
                                  letter(size - 1) << 15 |
                                  static_cast<std::uint32_t>(size) << 20;
    return (letters * 2654435769U) >> (32 - slot_bits);
}

constexpr std::array<std::uint8_t, slot_count> lay_out() {
    std::array<std::uint8_t, slot_count> slots{};
    for (std::size_t i = 1; i < entry_count; ++i) {
        std::size_t slot = slot_of(entries[i].word);
        while (slots[slot] != 0) slot = (slot + 1) % slot_count;
        slots[slot] = static_cast<std::uint8_t>(i);
    }
    return slots;
}

constexpr auto slots = lay_out();

bool equal_in_any_case(std::string_view word, std::string_view upper) {
    if (word.size() != upper.size()) return false;
    for (std::size_t i = 0; i < word.size(); ++i)
        if (to_upper(word[i]) != upper[i]) return false;
    return true;
}

} // namespace

Keyword keyword_of(std::string_view word) {
    if (word.size() < 2 || word.size() > longest_word) return Keyword::None;
    for (std::size_t slot = slot_of(word); slots[slot] != 0; slot = (slot + 1) % slot_count)
        if (equal_in_any_case(word, entries[slots[slot]].word))
            return static_cast<Keyword>(slots[slot]);
    return Keyword::None;
}

bool is_reserved(Keyword keyword) {
    return entries[static_cast<std::size_t>(keyword)].reserved;
}

std::string_view spelling(Keyword keyword) {
    return entries[static_cast<std::size_t>(keyword)].word;
}

} // namespace tsql
