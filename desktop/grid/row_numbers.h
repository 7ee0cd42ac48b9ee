// The row numbers at the left of a grid.
#pragma once

#include <QHeaderView>

namespace desktop {

class GridView;

class RowNumbers : public QHeaderView {
public:
    explicit RowNumbers(GridView& view);
    QSize sizeHint() const override;

protected:
    void paintSection(QPainter* painter, const QRect& rect, int row) const override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    GridView& view_;
};

} // namespace desktop
