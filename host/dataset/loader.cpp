// Filling a dataset from a query: matching what is answered with the fields that were defined.
#include "host/dataset/loader.h"

#include "host/dataset/client_dataset.h"
#include "host/values/errors.h"
#include "host/values/text.h"

namespace host {

namespace {

Value cell_value(const CellView& cell, FieldType type) {
    if (cell.null) return {};
    switch (type) {
    case FieldType::Text: return std::string(cell.text);
    case FieldType::Integer: return cell.integer;
    case FieldType::Amount: return Amount::from_units(cell.integer);
    case FieldType::Boolean: return cell.integer != 0;
    default: return from_milliseconds(cell.integer);
    }
}

// The cell for a field of another type. A number keeps all its digits as a text, also those that
// an amount has no room for.
std::optional<Value> fitting_value(const CellView& cell, FieldType answered, FieldType wanted) {
    if (wanted == FieldType::Text && answered == FieldType::Amount && !cell.null &&
        !cell.text.empty())
        return Value{std::string(cell.text)};
    return converted(cell_value(cell, answered), wanted);
}

// A join may answer a name twice and an expression none: "KM_ID", "KM_ID_1", "COLUMN3".
void make_names_unique(std::vector<ColumnDescription>& columns) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].name.empty()) columns[i].name = "COLUMN" + std::to_string(i + 1);
        const std::string wanted = columns[i].name;
        int repeated = 0;
        for (std::size_t before = 0; before < i; ++before)
            if (same_text(columns[before].name, columns[i].name)) {
                columns[i].name = wanted + "_" + std::to_string(++repeated);
                before = static_cast<std::size_t>(-1); // compare the new name from the start
            }
    }
}

} // namespace

void DataSetLoader::columns(const std::vector<ColumnDescription>& columns) {
    answered_ = columns;
    make_names_unique(answered_);
    std::vector<FieldType> types;
    types.reserve(answered_.size());
    source_.clear();
    source_.reserve(answered_.size());
    converts_.clear();
    for (std::size_t i = 0; i < answered_.size(); ++i) {
        const TField* known = dataset_.FindField(answered_[i].name);
        const bool defined = known != nullptr && known->defined_;
        types.push_back(defined ? known->Type : answered_[i].type);
        source_.push_back(static_cast<int>(i));
        converts_.push_back(types.back() != answered_[i].type);
        any_converts_ = any_converts_ || converts_.back();
    }
    rows_.define(types);
}

void DataSetLoader::row(const std::vector<CellView>& cells) {
    if (!any_converts_) {
        rows_.append(cells, source_);
        return;
    }
    const Slot row = rows_.append();
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const FieldType answered = answered_[i].type;
        std::optional<Value> value = cell_value(cells[i], answered);
        if (converts_[i])
            value = fitting_value(cells[i], answered, rows_.type(static_cast<int>(i)));
        if (!value)
            throw DataError("数据库中“" + answered_[i].name + "”的内容不符合应有的类型，无法读取。",
                            "value does not fit the field: " +
                                to_text(cell_value(cells[i], answered)));
        if (!is_null(*value)) rows_.set(row, static_cast<int>(i), *value);
    }
}

void DataSetLoader::commit() {
    std::vector<std::unique_ptr<TField>> fields;
    fields.reserve(answered_.size() + dataset_.fields_.size());
    for (std::size_t i = 0; i < answered_.size(); ++i) {
        const ColumnDescription& column = answered_[i];
        std::unique_ptr<TField> field;
        for (auto& known : dataset_.fields_)
            if (known && same_text(known->FieldName, column.name)) field = std::move(known);
        if (!field) {
            field = std::make_unique<TField>();
            field->FieldName = column.name;
            if (column.type == FieldType::Amount && column.decimals > 0)
                field->DisplayFormat =
                    "0." + std::string(static_cast<std::size_t>(column.decimals), '0');
        }
        field->Type = rows_.type(static_cast<int>(i));
        if (!field->defined_) field->Size = column.size;
        fields.push_back(std::move(field));
    }
    for (auto& known : dataset_.fields_) {
        if (!known || !known->defined_) continue;
        rows_.add_column(known->Type);
        fields.push_back(std::move(known));
    }
    dataset_.fields_.clear();
    dataset_.take_rows(std::move(rows_), std::move(fields));
}

} // namespace host
