// Passes the news of a dataset on to the view.
#include "desktop/grid/grid_model.h"

#include "desktop/grid/cell_text.h"
#include "desktop/theme/text.h"

namespace desktop {

GridModel::GridModel(host::TDBGridEh& grid, QObject* parent)
    : QAbstractTableModel(parent), grid_(&grid) {
    refresh();
}

GridModel::~GridModel() { watch(nullptr); }

void GridModel::watch(host::TClientDataSet* dataset) {
    if (dataset == dataset_) return;
    if (dataset_) dataset_->remove_listener(this);
    dataset_ = dataset;
    if (dataset_) dataset_->add_listener(this);
}

void GridModel::refresh() {
    if (!grid_) return;
    const int columns = static_cast<int>(grid_->Columns.size());
    if (dataset_ == grid_->DataSet && columns == columns_) return;
    beginResetModel();
    watch(grid_->DataSet);
    columns_ = columns;
    rows_ = dataset_ ? dataset_->RecordCount() : 0;
    endResetModel();
    if (on_reset) on_reset();
}

void GridModel::detach() {
    beginResetModel();
    watch(nullptr);
    grid_ = nullptr;
    rows_ = columns_ = 0;
    endResetModel();
}

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns_;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!grid_ || !dataset_ || index.row() >= dataset_->RecordCount()) return {};
    if (role == Qt::DisplayRole) return qt(grid_->cell_text(index.row(), index.column()));
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(
            alignment_of(*grid_, grid_->Columns[static_cast<std::size_t>(index.column())]));
    return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole || !grid_) return {};
    if (orientation == Qt::Vertical) return section + 1;
    if (section >= static_cast<int>(grid_->Columns.size())) return {};
    return qt(grid_->Columns[static_cast<std::size_t>(section)].Title);
}

Qt::ItemFlags GridModel::flags(const QModelIndex&) const {
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

void GridModel::dataset_reset() {
    beginResetModel();
    rows_ = dataset_->RecordCount();
    endResetModel();
    if (on_reset) on_reset();
}

void GridModel::row_changed(int row) {
    if (on_rows_changed) on_rows_changed(row, row);
}

void GridModel::rows_inserted(int first, int count) {
    beginInsertRows({}, first, first + count - 1);
    rows_ += count;
    endInsertRows();
    if (on_rows_changed) on_rows_changed(first, rows_);
}

void GridModel::rows_removed(int first, int count) {
    beginRemoveRows({}, first, first + count - 1);
    rows_ -= count;
    endRemoveRows();
    if (on_rows_changed) on_rows_changed(first, rows_);
}

void GridModel::cursor_moved(int) {
    if (on_cursor) on_cursor();
}

// The form is being destroyed and its grid may be gone already: nothing may look at it now.
void GridModel::dataset_gone() {
    dataset_ = nullptr;
    rows_ = 0;
}

} // namespace desktop
