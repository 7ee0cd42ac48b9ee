// Splits an amount into its groups of three digits and paints them apart.
#include "desktop/theme/amount_text.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStringList>

#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

constexpr int group_gap = 2;

// "-1234567.89" → "-1", "234", "567.89".
QStringList groups(const QString& text) {
    const qsizetype sign = text.startsWith('-') ? 1 : 0;
    qsizetype point = text.indexOf('.');
    if (point < 0) point = text.size();
    QStringList parts;
    qsizetype from = 0;
    for (qsizetype at = sign + 1; at < point; ++at) {
        if ((point - at) % 3 != 0) continue;
        parts << text.mid(from, at - from);
        from = at;
    }
    parts << text.mid(from);
    return parts;
}

} // namespace

bool looks_like_amount(const QString& text) {
    bool digit = false, point = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c >= '0' && c <= '9') digit = true;
        else if (c == '.' && digit && !point) point = true;
        else if (!(c == '-' && i == 0)) return false;
    }
    return digit;
}

bool is_zero_amount(const QString& text) {
    for (const QChar c : text)
        if (c >= '1' && c <= '9') return false;
    return looks_like_amount(text);
}

int amount_width(const QString& text, const QFontMetrics& metrics) {
    int width = 0;
    const QStringList parts = groups(text);
    for (const QString& part : parts) width += metrics.horizontalAdvance(part);
    return width + group_gap * static_cast<int>(parts.size() - 1);
}

int paint_amount_from(QPainter& painter, int x, int baseline, const QString& text) {
    const QFontMetrics metrics = painter.fontMetrics();
    for (const QString& part : groups(text)) {
        painter.drawText(x, baseline, part);
        x += metrics.horizontalAdvance(part) + group_gap;
    }
    return x - group_gap;
}

void paint_amount(QPainter& painter, const QRect& box, const QString& text, const QColor& color) {
    const QFontMetrics metrics = painter.fontMetrics();
    painter.setPen(color);
    const int width = amount_width(text, metrics);
    if (width > box.width()) {
        painter.drawText(box, Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("####"));
        return;
    }
    const int baseline = box.y() + (box.height() - metrics.height()) / 2 + metrics.ascent();
    paint_amount_from(painter, box.right() + 1 - width, baseline, text);
}

QColor amount_color(const QString& text, const QColor& usual) {
    if (is_zero_amount(text)) return token::ink_4;
    return text.startsWith('-') ? token::cinnabar_1 : usual;
}

} // namespace desktop
