// An ordinary line edit without a frame of its own, and the button beside its text.
#include "desktop/grid/cell_editor.h"

#include <QInputMethodEvent>
#include <QMouseEvent>
#include <QPainter>

#include "desktop/theme/icons.h"
#include "desktop/theme/tokens.h"

namespace desktop {

CellEditor::CellEditor(QWidget* parent) : QLineEdit(parent) {
    setProperty("part", "cell");
    hide();
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (on_edited) on_edited(text);
    });
}

void CellEditor::set_up(Qt::Alignment alignment, bool lookup, bool) {
    setAlignment(alignment);
    lookup_ = lookup;
    setTextMargins(0, 0, lookup ? 24 : 0, 0);
}

void CellEditor::set_latin(bool latin) {
    setInputMethodHints(latin ? Qt::ImhFormattedNumbersOnly : Qt::ImhNone);
    setAttribute(Qt::WA_InputMethodEnabled, !latin);
}

QRect CellEditor::button() const { return {width() - 28, 2, 26, height() - 4}; }

void CellEditor::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    if (!lookup_) return;
    QPainter painter(this);
    painter.fillRect(button(), token::paper_1);
    painter.fillRect(button().left(), 2, 1, height() - 4, token::rule_2);
    icons::paint(painter, "ellipsis", button(), 14, token::ink_2);
}

void CellEditor::mousePressEvent(QMouseEvent* event) {
    if (lookup_ && button().contains(event->position().toPoint())) {
        event->accept();
        if (on_lookup) on_lookup();
        return;
    }
    QLineEdit::mousePressEvent(event);
}

void CellEditor::inputMethodEvent(QInputMethodEvent* event) {
    if (!event->preeditString().isEmpty() && on_composing) on_composing();
    QLineEdit::inputMethodEvent(event);
}

void CellEditor::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (on_focus) on_focus();
}

void CellEditor::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (on_focus) on_focus();
}

} // namespace desktop
