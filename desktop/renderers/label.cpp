// A text of the form; the line of conditions above a list has a look of its own.
#include <QLabel>
#include <QMouseEvent>

#include "desktop/renderers/form_view.h"
#include "desktop/renderers/renderers.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/icons.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

class ClickableLabel : public QLabel {
public:
    using QLabel::QLabel;
    std::function<void()> on_click;

protected:
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
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        QLabel::paintEvent(event);
        QPainter painter(this);
        icons::paint(painter, "list-filter", QRect(0, 0, 16, height()), 14, token::ink_3);
    }
};

} // namespace

QWidget* draw_label(host::TLabel& label, FormView& view) {
    const bool condition = label.Name() == "ConditionLabel";
    auto* widget = condition ? static_cast<QLabel*>(new ConditionLine(&view))
                             : new ClickableLabel(&view);
    widget->setTextFormat(Qt::PlainText);
    view.listen(label, [widget, &label, condition] {
        widget->setText(qt(label.Caption.get()));
        const bool clickable = label.OnClick && !condition;
        QFont font = fonts::body(label.Bold);
        font.setUnderline(clickable);
        if (!condition) widget->setFont(font);
        const QColor plain = condition ? token::ink_2 : token::ink_1;
        QPalette ink = widget->palette();
        ink.setColor(QPalette::WindowText,
                     token::of(label.FontColor, clickable ? token::indigo_1 : plain));
        widget->setPalette(ink);
        widget->setToolTip(qt(label.Hint.get()));
        widget->setVisible(label.Visible);
    });
    if (label.OnClick && !condition) {
        widget->setCursor(Qt::PointingHandCursor);
        static_cast<ClickableLabel*>(widget)->on_click = [&label, &view] {
            if (view.form()) view.run([&label] { label.OnClick(); });
        };
    }
    return widget;
}

} // namespace desktop
