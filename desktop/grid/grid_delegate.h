// Paints the cells of a grid.
#pragma once

#include <QStyledItemDelegate>

#include "host/controls/grid.h"

namespace desktop {

class GridView;

// Ground, text, amount, check mark, lines and the current-cell rectangle, straight from the grid.
class GridDelegate : public QStyledItemDelegate {
public:
    explicit GridDelegate(GridView& view);
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override;
    // What a row shows between its last column and the edge of the grid.
    void paint_rest(QPainter& painter, const QRect& rest, int row) const;

private:
    bool is_summary(int row) const;
    QColor ground_of(int row, const host::CellParams& params) const;
    void paint_content(QPainter& painter, const QRect& cell, int row, int column,
                       const host::CellParams& params) const;
    void paint_lines(QPainter& painter, const QRect& cell, int row, int column) const;
    GridView& view_;
};

} // namespace desktop
