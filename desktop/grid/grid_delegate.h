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

private:
    bool is_summary(int row) const;
    void paint_ground(QPainter& painter, const QRect& cell, int row,
                      const host::CellParams& params) const;
    void paint_content(QPainter& painter, const QRect& cell, int row, int column,
                       const host::CellParams& params) const;
    void paint_lines(QPainter& painter, const QRect& cell, int row, int column) const;
    GridView& view_;
};

} // namespace desktop
