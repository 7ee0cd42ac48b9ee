// Paints a document's title in bold serif type with two rules below, as on the printed form.
#include "desktop/renderers/title_label.h"

#include <QPainter>

#include "desktop/theme/fonts.h"
#include "desktop/theme/tokens.h"

namespace desktop {

TitleLabel::TitleLabel(const QString& text, QWidget* parent) : QWidget(parent), text_(text) {
    // Blanks a form puts between the characters are replaced by the letter spacing.
    text_.remove(' ');
    setAccessibleName(text_);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize TitleLabel::sizeHint() const {
    return {QFontMetrics(fonts::title()).horizontalAdvance(text_) + 28, 38};
}

void TitleLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(fonts::title());
    painter.setPen(token::ink_1);
    painter.drawText(rect().adjusted(6, 0, 0, -6), Qt::AlignCenter, text_);
    painter.fillRect(0, height() - 5, width(), 2, token::ink_1);
    painter.fillRect(0, height() - 1, width(), 1, token::ink_1);
}

} // namespace desktop
