// A grid: where it stands, what it shows, what its footers say.
#include "host/controls/grid.h"

#include <algorithm>

#include "host/contract/Zpy.h"
#include "host/forms/form.h"
#include "host/values/errors.h"
#include "host/values/text.h"

namespace host {

// Marks name rows by their place; when rows change places they mean nothing any more.
struct TDBGridEh::Watch : DataSetListener {
    Watch(const TDBGridEh& grid, TClientDataSet& dataset) : grid(grid), dataset(&dataset) {
        dataset.add_listener(this);
    }
    ~Watch() override {
        if (dataset != nullptr) dataset->remove_listener(this);
    }
    void dataset_reset() override { grid.marked_.clear(); }
    void row_changed(int) override {}
    void rows_inserted(int, int) override { grid.marked_.clear(); }
    void rows_removed(int, int) override { grid.marked_.clear(); }
    void cursor_moved(int) override {}
    void dataset_gone() override { dataset = nullptr; }
    const TDBGridEh& grid;
    TClientDataSet* dataset;
};

TDBGridEh::TDBGridEh(TForm* form, std::string name, TClientDataSet* dataset)
    : TWinControl(form, std::move(name)), DataSet(dataset) {
    attach();
}

TDBGridEh::~TDBGridEh() = default;

void TDBGridEh::attach() const {
    if (watch_ && watch_->dataset == DataSet) return;
    watch_.reset();
    marked_.clear();
    if (DataSet != nullptr) watch_ = std::make_unique<Watch>(*this, *DataSet);
}

const GridColumn* TDBGridEh::current_column() const {
    if (column_ < 0 || column_ >= static_cast<int>(Columns.size())) return nullptr;
    return &Columns[static_cast<std::size_t>(column_)];
}

int TDBGridEh::column_index(const std::string& field) const {
    for (std::size_t i = 0; i < Columns.size(); ++i)
        if (same_text(Columns[i].FieldName, field)) return static_cast<int>(i);
    return -1;
}

std::string TDBGridEh::cell_text(int row, int column) const {
    const GridColumn& shown = Columns.at(static_cast<std::size_t>(column));
    const TField* field = DataSet->FindField(shown.FieldName);
    return field == nullptr ? "" : DataSet->display_at(row, field->index());
}

CellParams TDBGridEh::cell_params(int row, int column) {
    CellParams params;
    TField* field = DataSet->FindField(Columns.at(static_cast<std::size_t>(column)).FieldName);
    if (field == nullptr || !OnGetCellParams) return params;
    const TClientDataSet::Peek peek(*DataSet, row);
    OnGetCellParams(*field, params);
    return params;
}

std::vector<ShownColumn> TDBGridEh::shown_columns() const {
    std::vector<ShownColumn> shown;
    const auto visible = [this](int column) {
        return column >= 0 && column < static_cast<int>(Columns.size()) &&
               Columns[static_cast<std::size_t>(column)].Visible;
    };
    for (const ShownColumn& column : shown_)
        if (visible(column.column)) shown.push_back(column);
    if (!shown_.empty()) return shown;
    for (int i = 0; i < static_cast<int>(Columns.size()); ++i)
        if (visible(i)) shown.push_back({i, Columns[static_cast<std::size_t>(i)].Width});
    return shown;
}

Value TDBGridEh::footer_value(int column) const {
    const GridColumn& shown = Columns.at(static_cast<std::size_t>(column));
    switch (shown.Footer) {
    case FooterKind::None: return {};
    case FooterKind::Text: return Value{shown.FooterText};
    case FooterKind::Count:
        return Value{std::int64_t{DataSet == nullptr ? 0 : DataSet->RecordCount()}};
    case FooterKind::Sum: break;
    }
    const std::string& name = shown.FooterField.empty() ? shown.FieldName : shown.FooterField;
    if (DataSet == nullptr || DataSet->FindField(name) == nullptr) return {};
    return Value{DataSet->Sum(name)};
}

// A sum is shown as the column's cells are, also where it adds up another field.
std::string TDBGridEh::footer_format(const GridColumn& shown) const {
    if (shown.Footer != FooterKind::Sum || DataSet == nullptr) return {};
    const std::string& name = shown.FooterField.empty() ? shown.FieldName : shown.FooterField;
    const TField* summed = DataSet->FindField(name);
    if (summed == nullptr) return {};
    const TField* own = DataSet->FindField(shown.FieldName);
    const std::string format = own != nullptr ? own->DisplayFormat : summed->DisplayFormat;
    return format.empty() && summed->Type == FieldType::Amount ? "0.00" : format;
}

std::string TDBGridEh::footer_text(int column) const {
    const GridColumn& shown = Columns.at(static_cast<std::size_t>(column));
    return formatted(footer_value(column), footer_format(shown));
}

std::vector<int> TDBGridEh::selected_rows() const {
    attach();
    if (!marked_.empty()) return marked_;
    if (DataSet == nullptr || DataSet->IsEmpty()) return {};
    return {DataSet->RecNo()};
}

void TDBGridEh::mark_row(int row, bool on) {
    attach();
    if (DataSet == nullptr || row < 0 || row >= DataSet->RecordCount()) return;
    const auto at = std::lower_bound(marked_.begin(), marked_.end(), row);
    const bool is_marked = at != marked_.end() && *at == row;
    if (is_marked == on) return;
    if (on)
        marked_.insert(at, row);
    else
        marked_.erase(at);
    changed();
}

bool TDBGridEh::marked(int row) const {
    return std::binary_search(marked_.begin(), marked_.end(), row);
}

void TDBGridEh::clear_marks() {
    if (marked_.empty()) return;
    marked_.clear();
    changed();
}

void TDBGridEh::title_click(int column) {
    if (OnTitleClick) return OnTitleClick(column);
    if (FixedOrder) return;
    const std::string& field = Columns.at(static_cast<std::size_t>(column)).FieldName;
    if (DataSet == nullptr || DataSet->FindField(field) == nullptr) return;
    commit_edit_or_abort();
    const bool again = same_text(DataSet->sorted_by(), field);
    DataSet->SortBy(field, again && !DataSet->sorted_descending());
}

std::string TDBGridEh::copy_text(bool all) const {
    std::string text;
    const auto add = [&](const std::string& cell, bool first) {
        if (!first) text += '\t';
        for (const char c : cell) text += c == '\t' || c == '\n' || c == '\r' ? ' ' : c;
    };
    bool first = true;
    for (const GridColumn& column : Columns) {
        if (!column.Visible) continue;
        add(replaced(column.Title, "|", " "), first);
        first = false;
    }
    text += '\n';
    std::vector<int> rows = selected_rows();
    if (all) {
        rows.clear();
        for (int row = 0; row < DataSet->RecordCount(); ++row) rows.push_back(row);
    }
    for (const int row : rows) {
        first = true;
        for (int i = 0; i < static_cast<int>(Columns.size()); ++i) {
            if (!Columns[static_cast<std::size_t>(i)].Visible) continue;
            add(cell_text(row, i), first);
            first = false;
        }
        text += '\n';
    }
    return text;
}

bool TDBGridEh::find(const std::string& typed) {
    if (DataSet == nullptr || DataSet->IsEmpty() || current_column() == nullptr) return false;
    const int count = DataSet->RecordCount();
    for (int step = 0; step < count; ++step) {
        const int row = (DataSet->RecNo() + step) % count;
        const std::string text = cell_text(row, column_);
        if (starts_with_text(text, typed) || starts_with_text(GetPY(text), typed))
            return set_row(row);
    }
    return false;
}

} // namespace host
