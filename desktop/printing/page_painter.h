// Draws printed pages: on paper, in a PDF file, in the preview.
#pragma once

#include <QFont>
#include <QFontMetricsF>

#include <map>
#include <tuple>

#include "host/printing/paper.h"

class QPainter;
class QRectF;
class QString;

namespace desktop {

// Keeps the fonts it made: one painter draws all pages of a document.
class PagePainter {
public:
    // Into a painter whose unit is a hundredth of a millimetre, from the paper's upper left corner.
    void paint(QPainter& painter, const host::PaperPage& page);

private:
    struct Type {
        QFont font;
        QFontMetricsF metrics;
    };
    const Type& type_of(const host::PaperText& text, double scale);
    void draw(QPainter& painter, const host::PaperText& text);
    void draw_spaced(QPainter& painter, const host::PaperText& text, const QRectF& box,
                     const QString& words);
    void draw_upright(QPainter& painter, const host::PaperText& text);
    void draw_lines(QPainter& painter, const host::PaperText& text, const QRectF& box,
                    const QString& words);

    std::map<std::tuple<int, bool, bool>, Type> types_;
};

// Makes the painter's unit a hundredth of a millimetre on a device of that resolution.
void scale_to_paper(QPainter& painter, double dots_per_inch);

} // namespace desktop
