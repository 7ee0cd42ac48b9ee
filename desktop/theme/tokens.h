// The colours and measures of the desktop, by the names that the drawings use for them.
#pragma once

#include <QColor>

#include "host/controls/control.h"

namespace desktop::token {

// Paper: grids and edits, documents, the frame with headers and footers, hover and pressed.
inline constexpr QColor paper_0{0xFF, 0xFF, 0xFF}, paper_1{0xFA, 0xF8, 0xF4},
    paper_2{0xF2, 0xEF, 0xE8}, paper_3{0xE8, 0xE3, 0xD8};
// Rules: grid lines, borders, borders of edits and of column groups.
inline constexpr QColor rule_1{0xEC, 0xE8, 0xDF}, rule_2{0xD8, 0xD2, 0xC5},
    rule_3{0xB3, 0xAC, 0x9C};
// Ink: text, labels, hints and codes, zero amounts and what is disabled.
inline constexpr QColor ink_1{0x1E, 0x22, 0x26}, ink_2{0x50, 0x56, 0x5E}, ink_3{0x66, 0x6B, 0x73},
    ink_4{0xA5, 0xA0, 0x97};
// The accent: default button and summary rows, focus ring, selection, edited row, pale border.
inline constexpr QColor indigo_1{0x1D, 0x4E, 0x8C}, indigo_2{0x2F, 0x6F, 0xBF},
    indigo_3{0xD9, 0xE6, 0xF4}, indigo_4{0xEE, 0xF4, 0xFA}, indigo_5{0x8F, 0xB2, 0xD9};
// The signal: negative amounts and the seal, border and ground of a difference.
inline constexpr QColor cinnabar_1{0xB5, 0x30, 0x1D}, cinnabar_2{0xD9, 0x8A, 0x7C},
    cinnabar_3{0xFB, 0xED, 0xE9};
// The row of a voucher that is not audited.
inline constexpr QColor tint_open{0xE2, 0xF4, 0xF4};
// The selected row of a grid that does not have the focus, and the line under a selected row.
inline constexpr QColor selected_quiet{0xEF, 0xEB, 0xE3}, selected_rule{0xC6, 0xD8, 0xEC};
// Ruled amount boxes: after the two thousands places.
inline constexpr QColor thousands_rule{0x9C, 0xA9, 0xB8};
// The ground of a summary row.
inline constexpr QColor summary_ground{0xF6, 0xF9, 0xFC};

inline constexpr int menu_bar = 32, tab_strip = 36, tab = 29, tool_bar = 40, condition_line = 28,
                     status_bar = 24, navigation = 208, control = 28, radius = 3;
inline constexpr int grid_row = 24, entry_row = 28, voucher_row = 36, header = 28,
                     header_level = 24, footer = 28, voucher_footer = 40, row_numbers = 40,
                     cell_padding = 8, digit_box = 20;
inline constexpr int margin = 16, gap = 8, group_gap = 32;

// The colour that stands for a number a form gave (blue-green-red order); `otherwise` for none.
QColor of(host::Color given, const QColor& otherwise);

} // namespace desktop::token
