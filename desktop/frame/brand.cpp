// Paints the seal, the name and the grounds of the two top bands.
#include "desktop/frame/brand.h"

#include <QHBoxLayout>
#include <QMenuBar>
#include <QPainter>

#include "desktop/frame/tab_strip.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/tokens.h"

namespace desktop {

Brand::Brand(QMenuBar* menus, QWidget* parent) : QWidget(parent) {
    setFixedHeight(token::menu_bar);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(token::navigation - 8, 0, 0, 1);
    row->addWidget(menus);
}

void Brand::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), token::paper_2);
    painter.fillRect(0, height() - 1, width(), 1, token::rule_2);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(token::cinnabar_1);
    const QRect seal(8, 6, 20, 20);
    painter.drawRoundedRect(seal, 2, 2);
    painter.setFont(fonts::seal());
    painter.setPen(Qt::white);
    painter.drawText(seal.adjusted(0, -1, 0, -1), Qt::AlignCenter, QStringLiteral("帐"));
    QFont name = fonts::seal();
    name.setLetterSpacing(QFont::AbsoluteSpacing, 1);
    painter.setFont(name);
    painter.setPen(token::ink_1);
    painter.drawText(QRect(36, 0, 80, token::menu_bar - 1), Qt::AlignVCenter, QStringLiteral("帐房"));
}

TabBand::TabBand(TabStrip* tabs, QWidget* parent) : QWidget(parent) {
    setFixedHeight(token::tab_strip);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 0, 0, 0);
    row->addWidget(tabs, 1, Qt::AlignBottom);
}

void TabBand::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), token::paper_2);
    painter.fillRect(0, height() - 1, width(), 1, token::rule_2);
}

} // namespace desktop
