// The dataset of a grid as Qt's views want to see it.
#pragma once

#include <QAbstractTableModel>

#include <functional>

#include "host/controls/grid.h"

namespace desktop {

// Holds nothing but the number of rows it has told about; texts are read when they are painted.
// A million rows cost no more than ten.
class GridModel : public QAbstractTableModel, private host::DataSetListener {
public:
    GridModel(host::TDBGridEh& grid, QObject* parent);
    ~GridModel() override;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    // Looks whether the grid has another dataset or other columns than when last asked.
    void refresh();
    void detach(); // the grid goes; the model is empty from now on

    std::function<void()> on_reset;                // other rows
    std::function<void()> on_cursor;               // another current row or another state of it
    std::function<void(int first, int last)> on_rows_changed;

private:
    void dataset_reset() override;
    void row_changed(int row) override;
    void rows_inserted(int first, int count) override;
    void rows_removed(int first, int count) override;
    void cursor_moved(int row) override;
    void dataset_gone() override;
    void watch(host::TClientDataSet* dataset);

    host::TDBGridEh* grid_;
    host::TClientDataSet* dataset_ = nullptr;
    int rows_ = 0, columns_ = 0;
};

} // namespace desktop
