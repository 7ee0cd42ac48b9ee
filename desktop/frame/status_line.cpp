// Paints the parts of the status line from the right edge inwards.
#include "desktop/frame/status_line.h"

#include <QPainter>

#include "desktop/theme/fonts.h"
#include "desktop/theme/icons.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"

namespace desktop {

StatusLine::StatusLine(QWidget* parent) : QWidget(parent) { setFixedHeight(token::status_bar); }

void StatusLine::show_books(const BooksLabel& books, const std::string& period) {
    const QString shown = period.empty() ? QStringLiteral("未建帐") : qt(period);
    parts_ = {{"building-2", {}, qt(books.company), {}},
              {"", QStringLiteral("会计期间"), shown, {}},
              {"user", {}, qt(books.user), {}},
              {"database", {}, qt(books.database), qt(books.place)}};
    if (!books.mode.empty())
        parts_.insert(parts_.begin() + 2, {"", QStringLiteral("管理方式"), qt(books.mode), {}});
    setAccessibleName(qt(books.company) + " " + shown);
    update();
}

void StatusLine::say(const QString& text) {
    said_ = text;
    update();
}

int StatusLine::paint_part(QPainter& painter, const Part& part, int right) const {
    const QFontMetrics metrics(fonts::small());
    int width = 24 + metrics.horizontalAdvance(part.text);
    if (!part.icon.empty()) width += 19;
    if (!part.label.isEmpty()) width += metrics.horizontalAdvance(part.label) + 6;
    if (!part.after.isEmpty()) width += metrics.horizontalAdvance(part.after) + 6;
    int x = right - width;
    painter.fillRect(x, 5, 1, 16, token::rule_2);
    x += 12;
    if (!part.icon.empty()) {
        icons::paint(painter, part.icon, QRect(x, 1, 13, height()), 13, token::ink_3);
        x += 19;
    }
    auto words = [&](const QString& text, const QColor& ink) {
        if (text.isEmpty()) return;
        painter.setPen(ink);
        painter.drawText(QRect(x, 1, right - x, height() - 1), Qt::AlignVCenter, text);
        x += metrics.horizontalAdvance(text) + 6;
    };
    words(part.label, token::ink_2);
    words(part.text, token::ink_1);
    words(part.after, token::ink_2);
    return right - width;
}

void StatusLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), token::paper_2);
    painter.fillRect(0, 0, width(), 1, token::rule_2);
    painter.setFont(fonts::small());
    int right = width() - 4;
    for (auto part = parts_.rbegin(); part != parts_.rend(); ++part)
        right = paint_part(painter, *part, right);
    painter.setPen(token::ink_2);
    painter.drawText(QRect(12, 1, right - 24, height() - 1), Qt::AlignVCenter,
                     said_.isEmpty() ? QStringLiteral("就绪") : said_);
}

} // namespace desktop
