// A text of the form; the line of conditions above a list has a look of its own.
#include <QLabel>
#include <QMouseEvent>

#include "desktop/renderers/form_view.h"
#include "desktop/renderers/renderers.h"
#include "desktop/theme/amount_text.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/icons.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

// A text, or an amount with the gaps that amounts have in grids; it may be clicked.
class TextLabel : public QLabel {
public:
    using QLabel::QLabel;
    std::function<void()> on_click;
    QSize sizeHint() const override {
        QSize size = QLabel::sizeHint();
        if (looks_like_amount(text())) size.setWidth(amount_width(text(), fontMetrics()) + 2);
        return size;
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        if (!looks_like_amount(text())) return QLabel::paintEvent(event);
        QPainter painter(this);
        painter.setFont(font());
        paint_amount(painter, rect(), text(),
                     amount_color(text(), palette().color(QPalette::WindowText)));
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (on_click && rect().contains(event->position().toPoint())) on_click();
        else QLabel::mouseReleaseEvent(event);
    }
};

// " ●凭证日期:(…)" stays as the form gave it; the drawing before it says what it is.
class ConditionLine : public QLabel {
public:
    explicit ConditionLine(QWidget* parent) : QLabel(parent) {
        setContentsMargins(20, 0, 0, 0);
        setFont(fonts::small());
        setMinimumHeight(token::condition_line - 4);
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        QLabel::paintEvent(event);
        if (text().isEmpty()) return;
        QPainter painter(this);
        icons::paint(painter, "list-filter", QRect(0, 0, 16, height()), 14, token::ink_3);
    }
};

// Labels beside a line of conditions or at the bottom of a form are as small as those are.
QFont font_of(const host::TLabel& label, LabelLook look) {
    if (look == LabelLook::Formula) return fonts::formula();
    return look == LabelLook::Quiet ? fonts::small(label.Bold) : fonts::body(label.Bold);
}

QColor ink_of(const host::TLabel& label, LabelLook look) {
    if (label.OnClick) return token::indigo_1;
    return look == LabelLook::Quiet ? token::ink_2 : token::ink_1;
}

} // namespace

QWidget* draw_label(host::TLabel& label, FormView& view) {
    const bool condition = label.Name() == "ConditionLabel";
    auto* widget = condition ? static_cast<QLabel*>(new ConditionLine(&view))
                             : new TextLabel(&view);
    widget->setTextFormat(Qt::PlainText);
    if (condition) widget->setProperty("keeps room", true);
    const LabelLook look = condition ? LabelLook::Quiet : view.label_look();
    view.listen(label, [widget, &label, condition, look] {
        widget->setText(qt(label.Caption.get()));
        if (!condition) {
            QFont font = font_of(label, look);
            font.setUnderline(static_cast<bool>(label.OnClick));
            widget->setFont(font);
        }
        QPalette ink = widget->palette();
        ink.setColor(QPalette::WindowText, token::of(label.FontColor, ink_of(label, look)));
        widget->setPalette(ink);
        widget->setToolTip(qt(label.Hint.get()));
        // An empty label takes no room, unless its place is the rest of a line.
        const bool stands = !label.Caption->empty() || widget->property("keeps room").toBool();
        widget->setVisible(label.Visible && stands);
    });
    if (label.OnClick && !condition) {
        widget->setCursor(Qt::PointingHandCursor);
        static_cast<TextLabel*>(widget)->on_click = [&label, &view] {
            if (view.form()) view.run([&label] { label.OnClick(); });
        };
    }
    return widget;
}

} // namespace desktop
