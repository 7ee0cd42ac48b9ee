// Paints the tabs and tells when one is to close.
#include "desktop/frame/tab_strip.h"

#include <QMouseEvent>
#include <QPainter>

#include "desktop/theme/fonts.h"
#include "desktop/theme/icons.h"
#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

constexpr int dot_room = 12, cross_room = 24;

} // namespace

TabStrip::TabStrip(QWidget* parent) : QTabBar(parent) {
    setExpanding(false);
    setMovable(true);
    setDrawBase(false);
    setElideMode(Qt::ElideRight);
    setUsesScrollButtons(true);
    setFocusPolicy(Qt::NoFocus);
    setFixedHeight(token::tab + 1);
    setMouseTracking(true);
}

void TabStrip::set_unsaved(int index, bool unsaved) {
    if (this->unsaved(index) == unsaved) return;
    setTabData(index, unsaved);
    setTabText(index, tabText(index)); // the dot needs room: laid out anew
}

QSize TabStrip::tabSizeHint(int index) const {
    const int text = std::min(QFontMetrics(fonts::body()).horizontalAdvance(tabText(index)), 220);
    int width = text + 24 + 2;
    if (unsaved(index)) width += dot_room;
    if (closable(index)) width += cross_room - 8;
    return {width, token::tab + 1};
}

QRect TabStrip::cross(int index) const {
    const QRect tab = tabRect(index);
    return {tab.right() - cross_room, tab.top(), cross_room, tab.height()};
}

void TabStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), token::paper_2);
    painter.fillRect(0, height() - 1, width(), 1, token::rule_2);
    const QFontMetrics metrics(fonts::body());
    for (int i = 0; i < count(); ++i) {
        const QRect tab = tabRect(i).adjusted(0, 0, -2, 0);
        const bool active = i == currentIndex();
        if (active) {
            painter.fillRect(tab, token::paper_1);
            painter.fillRect(tab.left(), tab.top(), 1, tab.height(), token::rule_2);
            painter.fillRect(tab.right(), tab.top(), 1, tab.height(), token::rule_2);
            painter.fillRect(tab.left(), tab.top(), tab.width(), 2, token::indigo_1);
        }
        int x = tab.left() + 12;
        if (unsaved(i)) {
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(Qt::NoPen);
            painter.setBrush(token::indigo_2);
            painter.drawEllipse(QRectF(x, tab.center().y() - 2.5, 6, 6));
            painter.setRenderHint(QPainter::Antialiasing, false);
            x += dot_room;
        }
        const int room = tab.right() - x - (closable(i) ? cross_room - 4 : 10);
        painter.setFont(fonts::body());
        painter.setPen(active ? token::ink_1 : token::ink_2);
        painter.drawText(QRect(x, tab.top() + 1, room, tab.height() - 1),
                         Qt::AlignVCenter | Qt::AlignLeft,
                         metrics.elidedText(tabText(i), Qt::ElideRight, room));
        if (closable(i))
            icons::paint(painter, "x", cross(i).adjusted(-2, 1, -4, 0), 12, token::ink_3);
    }
}

void TabStrip::mousePressEvent(QMouseEvent* event) {
    const int index = tabAt(event->position().toPoint());
    const bool on_cross = index > 0 && cross(index).contains(event->position().toPoint());
    if (on_cross || event->button() == Qt::MiddleButton) return event->accept();
    QTabBar::mousePressEvent(event);
}

void TabStrip::mouseReleaseEvent(QMouseEvent* event) {
    const int index = tabAt(event->position().toPoint());
    const bool on_cross = index > 0 && cross(index).contains(event->position().toPoint());
    if (index > 0 && (on_cross || event->button() == Qt::MiddleButton)) {
        if (on_close) on_close(index);
        return;
    }
    QTabBar::mouseReleaseEvent(event);
}

} // namespace desktop
