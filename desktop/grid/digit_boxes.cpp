// Geometry and painting of ruled amounts; header, cells and footers share it.
#include "desktop/grid/digit_boxes.h"

#include <QPainter>

#include "desktop/theme/amount_text.h"
#include "desktop/theme/tokens.h"

namespace desktop::digit_boxes {
namespace {

// Lines stand after box 3 and 6 (百万, 千) and after box 9 (元).
constexpr int after_millions = 3, after_thousands = 6, after_yuan = 9;

int edge(const QRect& cell, int box) { return cell.left() + cell.width() * box / count; }

QRect box_rect(const QRect& cell, int box) {
    return QRect(edge(cell, box), cell.top(), edge(cell, box + 1) - edge(cell, box), cell.height());
}

// "-1234.50" → "-123450": the digits down to the cent, with the sign.
QString digits_of(const QString& amount) {
    const qsizetype point = amount.indexOf('.');
    const QString whole = point < 0 ? amount : amount.left(point);
    QString cents = point < 0 ? QString() : amount.mid(point + 1, 2);
    while (cents.size() < 2) cents += '0';
    QString digits = whole + cents;
    while (digits.size() > 3 && digits.startsWith('0')) digits.remove(0, 1);
    return digits;
}

} // namespace

bool fits(const QString& amount) { return digits_of(amount).size() <= count; }

void paint_rules(QPainter& painter, const QRect& cell) {
    for (int box = 1; box < count; ++box) {
        const QColor color = box == after_yuan ? token::cinnabar_1
                             : box == after_millions || box == after_thousands
                                 ? token::thousands_rule
                                 : token::rule_1;
        painter.fillRect(edge(cell, box) - 1, cell.top(), 1, cell.height(), color);
    }
}

void paint_amount(QPainter& painter, const QRect& cell, const QString& amount,
                  const QColor& color) {
    if (amount.isEmpty() || is_zero_amount(amount)) return;
    if (!fits(amount)) {
        desktop::paint_amount(painter, cell.adjusted(2, 0, -4, 0), amount, color);
        return;
    }
    const QString digits = digits_of(amount);
    painter.setPen(color);
    for (int k = 0; k < digits.size(); ++k) {
        const int box = count - static_cast<int>(digits.size()) + k;
        painter.drawText(box_rect(cell, box), Qt::AlignCenter, digits[k]);
    }
}

void paint_units(QPainter& painter, const QRect& cell) {
    static const QString units = QStringLiteral("亿千百十万千百十元角分");
    for (int box = 0; box < count; ++box)
        painter.drawText(box_rect(cell, box), Qt::AlignCenter, units[box]);
}

} // namespace desktop::digit_boxes
