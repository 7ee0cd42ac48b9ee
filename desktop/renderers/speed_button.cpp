// One segment of a row of buttons of which exactly one is down.
#include <QAbstractButton>
#include <QPainter>

#include "desktop/renderers/form_view.h"
#include "desktop/renderers/renderers.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

class Segment : public QAbstractButton {
public:
    explicit Segment(QWidget* parent) : QAbstractButton(parent) {
        setFocusPolicy(Qt::NoFocus); // the form's own keys and the mouse reach it
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        setFixedHeight(token::control);
        setProperty("part", "segment");
    }
    QSize sizeHint() const override {
        const int text_width = QFontMetrics(fonts::body()).horizontalAdvance(text());
        return {std::max(text_width + 18, 28), token::control};
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const bool down = property("down").toBool();
        painter.fillRect(rect(), down ? token::indigo_1
                                 : underMouse() ? token::paper_3 : token::paper_0);
        painter.setPen(token::rule_3);
        // Neighbours share one line: only the first has a left edge of its own.
        painter.drawRect(rect().adjusted(property("first").toBool() ? 0 : -1, 0, -1, -1));
        painter.setFont(fonts::body());
        painter.setPen(!isEnabled() ? token::ink_4 : down ? QColor(Qt::white) : token::ink_1);
        painter.drawText(rect(), Qt::AlignCenter, text());
    }
};

} // namespace

QWidget* draw_speed_button(host::TSpeedButton& button, FormView& view) {
    auto* widget = new Segment(&view);
    view.listen(button, [widget, &button] {
        widget->setText(qt(button.Caption.get()));
        widget->setProperty("down", button.Down.get());
        widget->setEnabled(button.Enabled);
        widget->setVisible(button.Visible);
        widget->updateGeometry();
        widget->update();
    });
    QObject::connect(widget, &QAbstractButton::clicked, widget, [&button, &view] {
        if (view.form()) view.run([&button] { button.Click(); });
    });
    return widget;
}

} // namespace desktop
