// The drawings of buttons and messages, recoloured for the state they are shown in.
#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>

#include <string>

class QPainter;
class QRect;

namespace desktop::icons {

// The drawing of that name ("save", "log-out") in one colour; an empty pixmap for an unknown name.
QPixmap pixmap(const std::string& name, int size, const QColor& color, qreal ratio = 1.0);
// Painted centred into `box`.
void paint(QPainter& painter, const std::string& name, const QRect& box, int size,
           const QColor& color);
// For menus: ink, white under the cursor, pale when disabled.
QIcon menu_icon(const std::string& name);

} // namespace desktop::icons
