// Splits a hint at its bracketed keys and paints those as caps.
#include "desktop/renderers/hint_line.h"

#include <QPainter>

#include "desktop/theme/fonts.h"
#include "desktop/theme/tokens.h"

namespace desktop {

HintLine::HintLine(const QString& text, QWidget* parent) : QWidget(parent) {
    setAccessibleName(text);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    const QFontMetrics plain(fonts::small());
    auto add = [&](const QString& piece, bool key) {
        if (piece.isEmpty()) return;
        runs_.push_back({piece, key, plain.horizontalAdvance(piece) + (key ? 10 : 0)});
    };
    qsizetype at = 0;
    while (at < text.size()) {
        const qsizetype open = text.indexOf('[', at);
        const qsizetype close = open < 0 ? -1 : text.indexOf(']', open);
        if (close < 0 || close - open > 12) break;
        add(text.mid(at, open - at), false);
        add(text.mid(open + 1, close - open - 1), true);
        at = close + 1;
    }
    add(text.mid(at), false);
}

QSize HintLine::sizeHint() const {
    int width = 0;
    for (const Run& run : runs_) width += run.width;
    return {width + 2, 20};
}

void HintLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(fonts::small());
    int x = 0;
    for (const Run& run : runs_) {
        const QRect box(x, 0, run.width, height());
        if (run.key) {
            painter.setPen(token::rule_2);
            painter.setBrush(token::paper_0);
            painter.drawRoundedRect(QRectF(box).adjusted(0.5, 1.5, -0.5, -1.5), 3, 3);
        }
        painter.setPen(run.key ? token::ink_2 : token::ink_3);
        painter.drawText(box, run.key ? Qt::AlignCenter : Qt::AlignVCenter | Qt::AlignLeft,
                         run.text);
        x += run.width;
    }
}

} // namespace desktop
