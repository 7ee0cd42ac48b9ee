// Rows by column: appending, reading and writing of cells.
#include "host/dataset/record_store.h"

namespace host {

namespace {

bool bit(const std::vector<std::uint64_t>& bits, std::size_t at) {
    return (bits[at / 64] >> (at % 64)) & 1;
}

void set_bit(std::vector<std::uint64_t>& bits, std::size_t at, bool on) {
    const std::uint64_t mask = std::uint64_t{1} << (at % 64);
    if (on)
        bits[at / 64] |= mask;
    else
        bits[at / 64] &= ~mask;
}

std::int64_t to_number(const Value& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) return *whole;
    if (const auto* amount = std::get_if<Amount>(&value)) return amount->units();
    if (const auto* flag = std::get_if<bool>(&value)) return *flag ? 1 : 0;
    return to_milliseconds(std::get<DateTime>(value));
}

} // namespace

void RecordStore::Column::append_null() {
    const std::size_t row = cells.size();
    cells.push_back(0);
    if (row / 64 >= nulls.size()) nulls.push_back(0);
    set_bit(nulls, row, true);
}

void RecordStore::clear() {
    for (Column& column : columns_) {
        column.cells = {};
        column.nulls = {};
    }
    arena_ = TextArena();
    rows_ = 0;
}

void RecordStore::define(const std::vector<FieldType>& types) {
    clear();
    columns_.clear();
    columns_.reserve(types.size());
    for (const FieldType type : types) columns_.push_back({type, {}, {}});
}

void RecordStore::add_column(FieldType type) {
    Column column{type, {}, {}};
    for (std::size_t row = 0; row < rows_; ++row) column.append_null();
    columns_.push_back(std::move(column));
}

std::size_t RecordStore::bytes() const {
    std::size_t total = arena_.bytes();
    for (const Column& column : columns_)
        total += (column.cells.capacity() + column.nulls.capacity()) * sizeof(std::uint64_t);
    return total;
}

Slot RecordStore::append() {
    for (Column& column : columns_) column.append_null();
    return static_cast<Slot>(rows_++);
}

Slot RecordStore::append(const std::vector<CellView>& cells, const std::vector<int>& source) {
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        Column& column = columns_[i];
        const auto from = static_cast<std::size_t>(source[i]);
        const CellView* cell = source[i] < 0 ? nullptr : &cells[from];
        if (cell == nullptr || cell->null) {
            column.append_null();
            continue;
        }
        const std::size_t row = column.cells.size();
        if (row / 64 >= column.nulls.size()) column.nulls.push_back(0);
        if (column.type != FieldType::Text) {
            column.cells.push_back(static_cast<std::uint64_t>(cell->integer));
        } else if (row > 0 && arena_.read(column.cells.back()) == cell->text) {
            column.cells.push_back(column.cells[row - 1]); // lists repeat texts down a column
        } else {
            column.cells.push_back(arena_.store(cell->text));
        }
    }
    return static_cast<Slot>(rows_++);
}

bool RecordStore::is_null(Slot row, int column) const {
    return bit(columns_[static_cast<std::size_t>(column)].nulls, row);
}

std::string_view RecordStore::text(Slot row, int column) const {
    return arena_.read(columns_[static_cast<std::size_t>(column)].cells[row]);
}

std::int64_t RecordStore::number(Slot row, int column) const {
    return static_cast<std::int64_t>(columns_[static_cast<std::size_t>(column)].cells[row]);
}

TextArena::Handle RecordStore::handle(Slot row, int column) const {
    return columns_[static_cast<std::size_t>(column)].cells[row];
}

Value RecordStore::value(Slot row, int column) const {
    if (is_null(row, column)) return {};
    switch (type(column)) {
    case FieldType::Text: return std::string(text(row, column));
    case FieldType::Integer: return number(row, column);
    case FieldType::Amount: return Amount::from_units(number(row, column));
    case FieldType::Boolean: return number(row, column) != 0;
    default: return from_milliseconds(number(row, column));
    }
}

void RecordStore::set(Slot row, int column, const Value& value) {
    Column& target = columns_[static_cast<std::size_t>(column)];
    set_bit(target.nulls, row, host::is_null(value));
    if (host::is_null(value))
        target.cells[row] = 0;
    else if (target.type == FieldType::Text)
        target.cells[row] = arena_.store(std::get<std::string>(value));
    else
        target.cells[row] = static_cast<std::uint64_t>(to_number(value));
}

} // namespace host
