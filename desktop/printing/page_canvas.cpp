// Draws a page once a turn or zoom and keeps the picture.
#include "desktop/printing/page_canvas.h"

#include <QPainter>

#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

constexpr double screen_dots_per_inch = 96, units_an_inch = 2540;
constexpr int ground = 24; // around the paper
constexpr double least_zoom = 0.25, greatest_zoom = 4;

} // namespace

PageCanvas::PageCanvas(const host::PaperDocument& document, QWidget* parent)
    : QWidget(parent), document_(document) {
    setObjectName("page");
    set_zoom(1);
}

QSize PageCanvas::paper_pixels(double zoom) const {
    const host::PaperSize size = document_.size();
    const double scale = zoom * screen_dots_per_inch / units_an_inch;
    return {qRound(size.width * scale), qRound(size.height * scale)};
}

void PageCanvas::turn_to(int page) {
    page_ = qBound(0, page, document_.page_count() - 1);
    drawn_ = QPixmap();
    update();
}

void PageCanvas::set_zoom(double zoom) {
    zoom_ = qBound(least_zoom, zoom, greatest_zoom);
    setFixedSize(paper_pixels(zoom_) + QSize(2 * ground, 2 * ground));
    drawn_ = QPixmap();
    update();
}

double PageCanvas::zoom_for_width(int room) const {
    return double(room - 2 * ground) / paper_pixels(1).width();
}

double PageCanvas::zoom_for_page(QSize room) const {
    return qMin(zoom_for_width(room.width()),
                double(room.height() - 2 * ground) / paper_pixels(1).height());
}

void PageCanvas::paintEvent(QPaintEvent*) {
    const QSize paper = paper_pixels(zoom_);
    if (drawn_.isNull()) {
        const double ratio = devicePixelRatioF();
        drawn_ = QPixmap(paper * ratio);
        drawn_.fill(Qt::white);
        QPainter painter(&drawn_);
        painter.setRenderHint(QPainter::TextAntialiasing);
        scale_to_paper(painter, zoom_ * screen_dots_per_inch * ratio);
        painter_.paint(painter, document_.page(page_));
        painter.end();
        drawn_.setDevicePixelRatio(ratio);
    }
    QPainter painter(this);
    painter.fillRect(rect(), token::paper_3);
    const QRect sheet(QPoint(ground, ground), paper);
    painter.fillRect(sheet.translated(2, 3), QColor(0, 0, 0, 28));
    painter.drawPixmap(sheet.topLeft(), drawn_);
    painter.setPen(token::rule_3);
    painter.drawRect(sheet.adjusted(-1, -1, 0, 0));
}

} // namespace desktop
