// Painting of amounts: digits in groups of three, a hair apart; the text itself stays plain.
#pragma once

#include <QColor>
#include <QString>

class QFontMetrics;
class QPainter;
class QRect;

namespace desktop {

// "1234567.89", "-0.50": digits, an optional sign, an optional point. Anything else is text.
bool looks_like_amount(const QString& text);
bool is_zero_amount(const QString& text);

// Width in pixels of an amount painted with its gaps.
int amount_width(const QString& text, const QFontMetrics& metrics);

// Paints `text` right-aligned into `box` in the painter's font: a gap of two pixels before each
// group of three digits. A text wider than the box is painted as "####", never cut.
void paint_amount(QPainter& painter, const QRect& box, const QString& text, const QColor& color);

// The same from a left edge; returns the x behind the last digit.
int paint_amount_from(QPainter& painter, int x, int baseline, const QString& text);

// The colour of an amount by its sign: negative red, zero pale, otherwise `usual`.
QColor amount_color(const QString& text, const QColor& usual);

} // namespace desktop
