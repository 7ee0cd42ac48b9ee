// Paints a document's title in bold serif type with two rules below, as on the printed form.
#include "desktop/renderers/title_label.h"

#include <QEvent>
#include <QLayout>
#include <QPainter>

#include "desktop/theme/fonts.h"
#include "desktop/theme/tokens.h"

namespace desktop {

TitleLabel::TitleLabel(const QString& text, QWidget* page) : QWidget(page), text_(text) {
    // Blanks a form puts between the characters are replaced by the letter spacing.
    text_.remove(' ');
    setAccessibleName(text_);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    page->installEventFilter(this);
}

QSize TitleLabel::sizeHint() const {
    return {QFontMetrics(fonts::title()).horizontalAdvance(text_) + 28, 38};
}

bool TitleLabel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) give_way();
    return QWidget::eventFilter(watched, event);
}

void TitleLabel::give_way() {
    QLayout* layout = parentWidget()->layout();
    if (layout == nullptr) return;
    const auto least_width = [this, layout](bool shown) {
        setVisible(shown);
        layout->activate();
        return layout->minimumSize().width();
    };
    const int with = least_width(true);
    // Above the fields instead of beside them it takes nothing from them.
    if (with > parentWidget()->width() && least_width(false) == with) setVisible(true);
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
