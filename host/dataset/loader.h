// Fills a dataset with what a query answers.
#pragma once

#include <memory>
#include <vector>

#include "host/dataset/record_store.h"

namespace host {

class TClientDataSet;

// Rows gather beside the dataset and become its content in commit(); a query that fails half-way
// therefore leaves the dataset as it was.
class DataSetLoader : public RowReceiver {
public:
    explicit DataSetLoader(TClientDataSet& dataset) : dataset_(dataset) {}
    void columns(const std::vector<ColumnDescription>& columns) override;
    void row(const std::vector<CellView>& cells) override;
    void commit();

private:
    TClientDataSet& dataset_;
    std::vector<ColumnDescription> answered_;
    RecordStore rows_;
    std::vector<int> field_of_; // for each answered column the field that takes it, -1 a new one
    std::vector<int> source_;   // for each column of `rows_` the answered column
    std::vector<bool> converts_; // for each column of `rows_`: the types differ
    bool any_converts_ = false;
};

} // namespace host
