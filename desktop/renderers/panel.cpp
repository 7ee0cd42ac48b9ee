// A badge: agreement in indigo, difference in cinnabar, always with a word.
#include <QLabel>
#include <QPainter>

#include "desktop/renderers/form_view.h"
#include "desktop/renderers/renderers.h"
#include "desktop/theme/amount_text.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/icons.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

class Badge : public QWidget {
public:
    explicit Badge(QWidget* parent) : QWidget(parent) {
        setFixedHeight(token::control);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }
    void show_text(const QString& text, bool difference) {
        difference_ = difference;
        // "差额  借多 29250.00": an amount at the end is painted as one.
        const qsizetype blank = text.lastIndexOf(' ');
        amount_ = looks_like_amount(text.mid(blank + 1)) ? text.mid(blank + 1) : QString();
        words_ = amount_.isEmpty() ? text : text.left(blank + 1).trimmed();
        updateGeometry();
        update();
    }
    QSize sizeHint() const override {
        int width = 20 + 14 + 6 + QFontMetrics(fonts::body()).horizontalAdvance(words_);
        if (!amount_.isEmpty()) width += 8 + amount_width(amount_, QFontMetrics(fonts::body(true)));
        return {width + 4, token::control};
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QColor ink = difference_ ? token::cinnabar_1 : token::indigo_1;
        painter.setPen(difference_ ? token::cinnabar_2 : token::indigo_5);
        painter.setBrush(difference_ ? token::cinnabar_3 : token::indigo_4);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
        icons::paint(painter, "scale", QRect(10, 0, 14, height()), 14, ink);
        painter.setPen(ink);
        painter.setFont(fonts::body());
        painter.drawText(rect().adjusted(30, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, words_);
        if (amount_.isEmpty()) return;
        painter.setFont(fonts::body(true));
        paint_amount(painter, rect().adjusted(0, 0, -11, 0), amount_, ink);
    }

private:
    QString words_, amount_;
    bool difference_ = false;
};

} // namespace

QWidget* draw_panel(host::TPanel& panel, FormView& view) {
    auto* widget = new Badge(&view);
    view.listen(panel, [widget, &panel] {
        widget->show_text(qt(panel.Caption.get()), panel.FontColor.get() == 255);
        widget->setVisible(panel.Visible);
    });
    return widget;
}

} // namespace desktop
