// Paints a button: ground by its state, then icon, caption and key in one run.
#include "desktop/renderers/hinted_button.h"

#include <QPainter>

#include "desktop/theme/fonts.h"
#include "desktop/theme/icons.h"
#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

constexpr int icon_size = 16, icon_gap = 6, hint_gap = 6;

} // namespace

HintedButton::HintedButton(QWidget* parent, ButtonLook look) : QPushButton(parent), look_(look) {
    setAutoDefault(false);
    setDefault(false);
    setFixedHeight(token::control);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void HintedButton::set_texts(const QString& caption, const QString& hint) {
    caption_ = caption;
    hint_ = hint;
    setText(caption); // for whoever reads the screen aloud
    updateGeometry();
    update();
}

void HintedButton::set_look(ButtonLook look) {
    look_ = look;
    updateGeometry();
    update();
}

void HintedButton::set_detail(Detail detail) {
    if (detail_ == detail) return;
    detail_ = detail;
    updateGeometry();
    update();
}

int HintedButton::width_at(Detail detail) const {
    int width = 2 * (look_ == ButtonLook::Tool ? 8 : 12);
    if (!icon_.empty()) width += icon_size;
    if (detail == Detail::IconOnly && !icon_.empty()) return width;
    if (!icon_.empty()) width += icon_gap;
    width += QFontMetrics(fonts::body()).horizontalAdvance(caption_);
    if (detail == Detail::Full && !hint_.isEmpty())
        width += hint_gap + QFontMetrics(fonts::tiny()).horizontalAdvance(hint_);
    return width;
}

QSize HintedButton::sizeHint() const {
    const int natural = width_at(detail_) + 2;
    return {is_tool() ? natural : std::max(natural, 80), token::control};
}

void HintedButton::paint_ground(QPainter& painter) {
    const QRectF box = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const bool pressed = isDown() || (isCheckable() && isChecked());
    QColor ground = token::paper_0, border = token::rule_3;
    if (is_primary()) {
        ground = !isEnabled() ? token::indigo_5
                 : pressed    ? QColor(0x16, 0x3C, 0x6D)
                              : token::indigo_1;
        border = ground;
    } else if (is_tool()) {
        const bool lit = isEnabled() && (pressed || underMouse());
        ground = lit ? token::paper_3 : QColor(Qt::transparent);
        border = ground;
    } else if (!isEnabled()) {
        ground = token::paper_2;
        border = token::rule_2;
    } else if (pressed || underMouse()) {
        ground = token::paper_3;
    }
    painter.setPen(border);
    painter.setBrush(ground);
    painter.drawRoundedRect(box, token::radius, token::radius);
    if (!hasFocus()) return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(is_primary() ? Qt::white : token::indigo_2, is_primary() ? 1 : 2));
    const qreal inset = is_primary() ? 2 : 0.5;
    painter.drawRoundedRect(box.adjusted(inset, inset, -inset, -inset), 2, 2);
    if (!is_primary()) return;
    painter.setPen(QPen(token::indigo_2, 2));
    painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
}

void HintedButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paint_ground(painter);
    QColor ink = token::ink_1, quiet = token::ink_3;
    if (is_primary()) {
        ink = Qt::white;
        quiet = QColor(255, 255, 255, 204);
    } else if (!isEnabled()) {
        ink = quiet = token::ink_4;
    }
    const QFontMetrics caption(fonts::body());
    int x = (width() - width_at(detail_)) / 2 + (look_ == ButtonLook::Tool ? 8 : 12);
    if (!icon_.empty()) {
        const QColor color = is_tool() && !is_primary() && isEnabled() ? token::ink_2 : ink;
        icons::paint(painter, icon_, QRect(x, 0, icon_size, height()), icon_size, color);
        x += icon_size + icon_gap;
        if (detail_ == Detail::IconOnly) return;
    }
    const int baseline = (height() - caption.height()) / 2 + caption.ascent();
    painter.setFont(fonts::body());
    painter.setPen(ink);
    painter.drawText(x, baseline, caption_);
    if (hint_.isEmpty() || detail_ != Detail::Full) return;
    painter.setFont(fonts::tiny());
    painter.setPen(quiet);
    painter.drawText(x + caption.horizontalAdvance(caption_) + hint_gap, baseline, hint_);
}

} // namespace desktop
