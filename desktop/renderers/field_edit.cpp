// Paints the button in the edge of an edit and tells when it is pressed.
#include "desktop/renderers/field_edit.h"

#include <QMouseEvent>
#include <QPainter>

#include "desktop/theme/icons.h"
#include "desktop/theme/tokens.h"

namespace desktop {

FieldEdit::FieldEdit(QWidget* parent) : QLineEdit(parent) {
    fix_height(this);
    setContextMenuPolicy(Qt::DefaultContextMenu);
}

void FieldEdit::set_edge(EdgeButton kind, const std::string& icon) {
    kind_ = kind;
    icon_ = icon;
    setTextMargins(0, 0, kind == EdgeButton::None ? 0 : edge().width() - 4, 0);
    update();
}

QRect FieldEdit::edge() const {
    const int width = kind_ == EdgeButton::Spin ? 20 : 26;
    return QRect(this->width() - width, 0, width, height());
}

void FieldEdit::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    if (kind_ == EdgeButton::None) return;
    QPainter painter(this);
    const int border = hasFocus() ? 2 : 1;
    QRect box = edge().adjusted(0, border, -border, -border);
    const QColor ink = isReadOnly() || !isEnabled() ? token::ink_4 : token::ink_2;
    if (kind_ != EdgeButton::Plain) {
        painter.fillRect(box, token::paper_1);
        painter.fillRect(QRect(box.left(), box.top(), 1, box.height()), token::rule_2);
    }
    if (kind_ != EdgeButton::Spin) {
        icons::paint(painter, icon_, box, 14, ink);
        return;
    }
    const int half = box.height() / 2;
    painter.fillRect(QRect(box.left(), box.top() + half, box.width(), 1), token::rule_2);
    icons::paint(painter, "chevron-up", QRect(box.left(), box.top(), box.width(), half), 10, ink);
    icons::paint(painter, "chevron-down",
                 QRect(box.left(), box.top() + half + 1, box.width(), half), 10, ink);
}

void FieldEdit::mousePressEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    if (kind_ == EdgeButton::None || !edge().contains(at) || isReadOnly()) {
        QLineEdit::mousePressEvent(event);
        return;
    }
    event->accept();
    if (on_edge) on_edge(at.y() < height() / 2);
}

void FieldEdit::mouseMoveEvent(QMouseEvent* event) {
    const bool over = kind_ != EdgeButton::None && edge().contains(event->position().toPoint());
    setCursor(over ? Qt::ArrowCursor : Qt::IBeamCursor);
    QLineEdit::mouseMoveEvent(event);
}

void fix_height(QWidget* widget) { widget->setFixedHeight(token::control); }

} // namespace desktop
