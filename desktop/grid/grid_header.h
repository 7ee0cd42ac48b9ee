// Column titles of a grid, in one line or in two: "期初余额|借方" stands below a shared upper title.
#pragma once

#include <QHeaderView>

#include "host/controls/grid.h"

namespace desktop {

class GridHeader : public QHeaderView {
public:
    GridHeader(host::TDBGridEh& grid, QWidget* parent);
    QSize sizeHint() const override;
    // The width below which the title of a column would be cut.
    int needed_width(int column) const;
    void detach() { grid_ = nullptr; } // the grid goes before its header
    // The column is the last of a group of columns with one upper title.
    bool closes_group(int column) const;
    bool closes_half(int column, int after) const;

protected:
    void paintSection(QPainter* painter, const QRect& rect, int column) const override;
    void paintEvent(QPaintEvent* event) override;

private:
    const host::GridColumn* column_at(int logical) const;
    QString upper(int logical) const; // part before '|', empty for a title in one line
    QString lower(int logical) const;
    int levels() const;
    // From the first to the last neighbour in sight with the same upper title.
    QRect group_rect(int logical) const;
    void paint_title(QPainter& painter, const QRect& box, int logical, const QString& text) const;
    host::TDBGridEh* grid_;
};

} // namespace desktop
