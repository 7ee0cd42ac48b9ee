// Paints the bar between two parts: paper with a short grip.
#include "desktop/renderers/splitter.h"

#include <QPainter>

#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

class Grip : public QSplitterHandle {
public:
    using QSplitterHandle::QSplitterHandle;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), token::paper_2);
        const bool lying = orientation() == Qt::Vertical;
        painter.setPen(token::rule_2);
        if (lying) {
            painter.drawLine(0, 0, width(), 0);
            painter.drawLine(0, height() - 1, width(), height() - 1);
        } else {
            painter.drawLine(0, 0, 0, height());
            painter.drawLine(width() - 1, 0, width() - 1, height());
        }
        const QSize grip = lying ? QSize(32, 2) : QSize(2, 32);
        painter.fillRect(QRect(QPoint((width() - grip.width()) / 2, (height() - grip.height()) / 2),
                               grip), token::rule_3);
    }
};

} // namespace

Splitter::Splitter(Qt::Orientation orientation, QWidget* parent) : QSplitter(orientation, parent) {
    setHandleWidth(8);
    setChildrenCollapsible(false);
}

void Splitter::share(int percent) {
    setSizes({percent * 10, (100 - percent) * 10});
    setStretchFactor(0, percent);
    setStretchFactor(1, 100 - percent);
}

QSplitterHandle* Splitter::createHandle() { return new Grip(orientation(), this); }

} // namespace desktop
