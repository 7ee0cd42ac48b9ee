// One page of a document on the screen, as large as wanted.
#pragma once

#include <QPixmap>
#include <QWidget>

#include "desktop/printing/page_painter.h"

namespace desktop {

// Shows the paper with a margin of ground around it. At zoom 1 a millimetre is about a millimetre.
class PageCanvas : public QWidget {
public:
    PageCanvas(const host::PaperDocument& document, QWidget* parent);

    int page() const { return page_; }
    void turn_to(int page); // the nearest there is
    double zoom() const { return zoom_; }
    void set_zoom(double zoom);
    double zoom_for_width(int room) const;  // the page fills the width
    double zoom_for_page(QSize room) const; // the whole page is seen

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize paper_pixels(double zoom) const;
    const host::PaperDocument& document_;
    PagePainter painter_;
    QPixmap drawn_; // the page as it stands; null when it has to be drawn
    int page_ = 0;
    double zoom_ = 1;
};

} // namespace desktop
