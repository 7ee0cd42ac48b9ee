// Paints row numbers; the row being edited shows a pencil, the selected one stands out.
#include "desktop/grid/row_numbers.h"

#include <QPainter>

#include "desktop/grid/cell_text.h"
#include "desktop/grid/grid_view.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/icons.h"
#include "desktop/theme/tokens.h"

namespace desktop {

RowNumbers::RowNumbers(GridView& view) : QHeaderView(Qt::Vertical, &view), view_(view) {
    setSectionResizeMode(view.grid()->RowSizing ? QHeaderView::Interactive : QHeaderView::Fixed);
    setMinimumSectionSize(token::grid_row);
    setHighlightSections(false);
    setSectionsClickable(false);
}

QSize RowNumbers::sizeHint() const {
    // Seven digits need more room than the four of an everyday list.
    const int digits = static_cast<int>(QString::number(std::max(count(), 1)).size());
    const int digit = QFontMetrics(fonts::tiny()).horizontalAdvance('0');
    return {std::max(token::row_numbers, digits * digit + 14), 0};
}

void RowNumbers::paintSection(QPainter* painter, const QRect& rect, int row) const {
    if (!view_.grid()) return;
    painter->save();
    const bool selected = view_.row_selected(row), focus = view_.shows_focus();
    const bool edited = view_.row_edited(row) && view_.grid()->DataSet->editing();
    QColor ground = token::paper_2, ink = token::ink_3;
    if (selected || view_.row_edited(row)) {
        ground = focus ? token::indigo_1 : token::rule_2;
        ink = focus ? QColor(Qt::white) : token::ink_1;
    }
    painter->fillRect(rect, ground);
    if (edited) {
        icons::paint(*painter, "pencil", rect.adjusted(rect.width() - 22, 0, 0, 0), 14, ink);
    } else {
        painter->setFont(fonts::tiny());
        painter->setPen(ink);
        painter->drawText(rect.adjusted(0, 0, -7, 0), Qt::AlignRight | Qt::AlignVCenter,
                          QString::number(row + 1));
    }
    painter->fillRect(rect.right(), rect.top(), 1, rect.height(), token::rule_2);
    painter->fillRect(rect.left(), rect.bottom(), rect.width(), 1, token::rule_1);
    painter->restore();
}

void RowNumbers::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), token::paper_2);
    painter.fillRect(viewport()->width() - 1, 0, 1, viewport()->height(), token::rule_2);
    if (view_.grid() && is_ruled(*view_.grid())) {
        const int height = row_height(*view_.grid());
        const int written = count() > 0 ? sectionViewportPosition(count() - 1) + height : 0;
        for (int y = written; y < viewport()->height(); y += height)
            painter.fillRect(0, y + height - 1, viewport()->width(), 1, token::rule_1);
    }
    painter.end();
    QHeaderView::paintEvent(event);
}

// A number is nothing to press; the edge of its row is, where rows may be made higher.
void RowNumbers::mousePressEvent(QMouseEvent* event) {
    if (view_.grid() && view_.grid()->RowSizing) QHeaderView::mousePressEvent(event);
}

} // namespace desktop
