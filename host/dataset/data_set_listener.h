// What a renderer of a dataset is told.
#pragma once

namespace host {

// Rows are positions in display order.
struct DataSetListener {
    virtual ~DataSetListener() = default;
    virtual void dataset_reset() = 0; // opened, closed, sorted, filtered
    virtual void row_changed(int row) = 0;
    virtual void rows_inserted(int first, int count) = 0;
    virtual void rows_removed(int first, int count) = 0;
    virtual void cursor_moved(int row) = 0; // also on a change of state
    virtual void dataset_gone() {}          // destroyed: do not touch it again
};

} // namespace host
