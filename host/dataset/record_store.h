// The rows of a dataset, stored by column: a typed array and a bit for NULL each.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "host/dataset/text_arena.h"
#include "host/ports/data_port.h"
#include "host/values/value.h"

namespace host {

// A row is named by its slot, which it keeps for its life; slots of deleted rows are not used
// again before the store is cleared.
using Slot = std::uint32_t;

class RecordStore {
public:
    void clear();
    void define(const std::vector<FieldType>& types); // clears
    void add_column(FieldType type);                  // NULL in the rows there are
    std::size_t rows() const { return rows_; }
    std::size_t bytes() const;

    Slot append(); // a row of NULLs
    // A row of a query; `source` gives for each column the cell it takes, -1 for NULL, and the
    // types of the cells must be the types of the columns.
    Slot append(const std::vector<CellView>& cells, const std::vector<int>& source);

    bool is_null(Slot row, int column) const;
    Value value(Slot row, int column) const;
    std::string_view text(Slot row, int column) const;    // of a Text column; "" for NULL
    std::int64_t number(Slot row, int column) const;      // of the others, as CellView; 0 for NULL
    void set(Slot row, int column, const Value& value);   // of the column's type, or NULL
    FieldType type(int column) const { return columns_[static_cast<std::size_t>(column)].type; }
    // Equal handles are equal texts; used to skip repeated work.
    TextArena::Handle handle(Slot row, int column) const;

private:
    struct Column {
        FieldType type;
        std::vector<std::uint64_t> cells; // handles of texts, whole numbers, flags
        std::vector<std::uint64_t> nulls; // one bit a row
        void append_null();
    };
    std::vector<Column> columns_;
    TextArena arena_;
    std::size_t rows_ = 0;
};

} // namespace host
