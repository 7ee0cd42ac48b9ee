// Ranks of characters, frozen: an index in the books is only as good as this order is lasting.
#pragma once

#include <array>
#include <cstdint>

namespace engines {

// Rank of each character of the basic plane. Characters that differ in case or in full and half
// width only have the same rank; Latin letters come before Chinese characters, and these in the
// order of their pinyin. Characters outside the basic plane come after all, by their number.
extern const std::array<std::uint16_t, 0x10000> text_order;

} // namespace engines
