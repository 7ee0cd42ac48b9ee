// The sums below a grid, each under its column.
#pragma once

#include <QWidget>

namespace desktop {

class GridView;

class GridFooter : public QWidget {
public:
    GridFooter(GridView& view, QWidget* parent);
    void refresh(); // reads the sums anew; hidden when no column has a footer
    bool wanted() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paint_column(QPainter& painter, int column, const QRect& cell);
    void paint_run(QPainter& painter, int right);
    GridView& view_;
};

} // namespace desktop
