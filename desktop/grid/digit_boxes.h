// Ruled amounts: one digit a box, 亿千百十万千百十元角分.
#pragma once

#include <QString>

class QColor;
class QPainter;
class QRect;

namespace desktop::digit_boxes {

inline constexpr int count = 11;

// Nine digits before the point fit, eight when the amount is negative.
bool fits(const QString& amount);
// The lines between the boxes of one cell: pale, blue after the thousands, red after 元.
void paint_rules(QPainter& painter, const QRect& cell);
// The digits of an amount, each centred in its box; a zero leaves the boxes empty, and an amount
// that does not fit is painted across them as an ordinary one.
void paint_amount(QPainter& painter, const QRect& cell, const QString& amount, const QColor& color);
// The letters of the units, for the header.
void paint_units(QPainter& painter, const QRect& cell);

} // namespace desktop::digit_boxes
