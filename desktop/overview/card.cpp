// The frame of a card.
#include "desktop/overview/card.h"

#include <QPainter>

#include "desktop/theme/fonts.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"

namespace desktop {

QString no_right() { return QStringLiteral("您没有查看这些数字的权限"); }

QString amount_of(host::Amount amount) { return qt(amount.to_text(2)); }

Card::Card(const QString& title, QWidget* parent) : QWidget(parent), title_(title) {
    setAccessibleName(title);
}

void Card::show_figures(const Figures& figures) {
    figures_ = figures;
    update();
}

void Card::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(token::rule_2);
    painter.setBrush(token::paper_0);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(1, head_height - 1, width() - 2, 1, token::rule_1);
    const QRect line(16, 0, width() - 28, head_height - 1);
    painter.setFont(fonts::body(true));
    painter.setPen(token::ink_1);
    painter.drawText(line, Qt::AlignVCenter, title_);
    const int used = painter.fontMetrics().horizontalAdvance(title_) + 8;
    painter.setFont(fonts::small());
    painter.setPen(token::ink_3);
    painter.drawText(line.adjusted(used, 0, 0, 0), Qt::AlignVCenter, hint());
    painter.drawText(line, Qt::AlignVCenter | Qt::AlignRight, right_hint());
    paint_body(painter, rect().adjusted(1, head_height, -1, -1));
}

} // namespace desktop
