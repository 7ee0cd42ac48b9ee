// Ruled amount columns on paper: one digit a box, 亿千百十万千百十元角分.
#pragma once

#include "host/printing/paper.h"
#include "host/values/amount.h"
#include "module/host_names.h"

namespace module {

inline constexpr int digit_boxes = 11;

// The letters of the units, for the head of the column.
void draw_units(PaperPage& page, const PaperBox& column, int size);
// The lines between the boxes: pale, dark after the thousands, red after 元.
void rule_boxes(PaperPage& page, const PaperBox& column);
// A digit a box; a negative amount is red with its sign in the box before the first digit; 0 stays
// empty. With `total` the sign ¥ stands before it and it is bold. An amount with too many digits
// is written across the boxes as an ordinary one.
void draw_amount(PaperPage& page, const PaperBox& row, Amount amount, int size, bool total);

} // namespace module
