// Spreads the characters of a caption with inner blanks; any other caption is an ordinary label.
#include "desktop/renderers/justified_label.h"

#include <QPainter>

#include "desktop/theme/fonts.h"
#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

constexpr int full_width = 52; // four characters

QStringList pieces(const QString& text) { return text.split(' ', Qt::SkipEmptyParts); }

} // namespace

JustifiedLabel::JustifiedLabel(const QString& text, QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setText(text);
    setFont(fonts::body());
    setProperty("part", "field-label");
    QPalette ink = palette();
    ink.setColor(QPalette::WindowText, token::ink_2);
    setPalette(ink);
}

bool JustifiedLabel::spread() const {
    const QString trimmed = text().trimmed();
    if (!trimmed.contains(' ')) return false;
    for (const QString& piece : pieces(trimmed))
        if (piece.size() > 2 || (piece[0].unicode() < 0x2E80)) return false;
    return true;
}

QSize JustifiedLabel::sizeHint() const {
    if (!spread()) return QLabel::sizeHint();
    return {full_width + 2, QLabel::sizeHint().height()};
}

void JustifiedLabel::paintEvent(QPaintEvent* event) {
    if (!spread()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setFont(font());
    painter.setPen(isEnabled() ? token::ink_2 : token::ink_4);
    const QStringList parts = pieces(text());
    const QFontMetrics metrics = painter.fontMetrics();
    int used = 0;
    for (const QString& part : parts) used += metrics.horizontalAdvance(part);
    const int free = std::max(0, full_width - used);
    const int gaps = std::max<int>(1, static_cast<int>(parts.size()) - 1);
    const int baseline = (height() - metrics.height()) / 2 + metrics.ascent();
    int x = 0;
    for (int i = 0; i < parts.size(); ++i) {
        painter.drawText(x + free * i / gaps, baseline, parts[i]);
        x += metrics.horizontalAdvance(parts[i]);
    }
}

} // namespace desktop
