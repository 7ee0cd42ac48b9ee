// Changing the rows of a dataset: begin, write, post, cancel, delete.
#include <algorithm>
#include <stdexcept>

#include "host/dataset/client_dataset.h"

namespace host {

namespace {

void run(const std::function<void()>& event) {
    if (event) event();
}

bool counts(FieldType type) { return type == FieldType::Amount || type == FieldType::Integer; }

} // namespace

void TClientDataSet::need_rows(const char* operation) const {
    if (!Active()) throw std::logic_error(std::string(operation) + ": the dataset is not open");
    if (view_.empty()) throw std::logic_error(std::string(operation) + ": the dataset is empty");
}

std::vector<Value> TClientDataSet::row_values(Slot row) const {
    std::vector<Value> values;
    for (const auto& field : fields_) values.push_back(store_.value(row, field->index()));
    return values;
}

void TClientDataSet::LeaveRow() {
    if (!editing()) return;
    if (row_modified_)
        Post();
    else
        Cancel();
}

void TClientDataSet::begin_insert(int position) {
    const Slot row = store_.append();
    in_order_ = false;
    if (position == RecordCount())
        alive_.push_back(row);
    else
        alive_.insert(std::find(alive_.begin(), alive_.end(),
                                view_[static_cast<std::size_t>(position)]),
                      row);
    view_.insert(view_.begin() + position, row);
    state_ = DataSetState::Insert;
    row_modified_ = false;
    const bool same_position = position == position_;
    tell([position](DataSetListener& listener) { listener.rows_inserted(position, 1); });
    move_to(position, false, false);
    if (same_position) tell_cursor();
    run(AfterInsert);
    row_modified_ = false; // what AfterInsert filled in is not yet the person's work
}

void TClientDataSet::Append() {
    if (!Active()) throw std::logic_error("Append: the dataset is not open");
    LeaveRow();
    run(BeforeInsert);
    begin_insert(RecordCount());
}

void TClientDataSet::Insert() {
    if (!Active()) throw std::logic_error("Insert: the dataset is not open");
    LeaveRow();
    run(BeforeInsert);
    begin_insert(view_.empty() ? 0 : position_);
}

void TClientDataSet::Edit() {
    if (editing()) return;
    need_rows("Edit");
    run(BeforeEdit);
    original_ = row_values(view_[static_cast<std::size_t>(position_)]);
    state_ = DataSetState::Edit;
    row_modified_ = false;
    tell_cursor();
    run(AfterEdit);
}

void TClientDataSet::write_cell(Slot row, int field, const Value& value) {
    const std::int64_t before = counts(store_.type(field)) ? store_.number(row, field) : 0;
    store_.set(row, field, value);
    in_order_ = false;
    if (counts(store_.type(field))) sums_.add(field, store_.number(row, field) - before);
}

void TClientDataSet::write(int field, const Value& value) {
    if (!editing()) throw std::logic_error("a field is written while its row is not edited");
    const Slot row = view_[static_cast<std::size_t>(position_)];
    if (store_.value(row, field) == value) return;
    write_cell(row, field, value);
    row_modified_ = true;
    const int position = position_;
    tell([position](DataSetListener& listener) { listener.row_changed(position); });
    if (OnDataChange) OnDataChange(fields_[static_cast<std::size_t>(field)].get());
}

void TClientDataSet::Post() {
    if (!editing()) return;
    run(BeforePost); // may refuse by Abort(): the row stays as it is, being edited
    if (!editing()) return;
    const Slot row = view_[static_cast<std::size_t>(position_)];
    if (state_ == DataSetState::Insert)
        changes_.row_inserted(row);
    else if (row_modified_)
        changes_.row_changed(row, std::move(original_));
    original_.clear();
    state_ = DataSetState::Browse;
    row_modified_ = false;
    tell_cursor();
    run(AfterPost);
}

void TClientDataSet::Cancel() {
    if (!editing()) return;
    if (state_ == DataSetState::Insert) {
        state_ = DataSetState::Browse;
        row_modified_ = false;
        remove_current();
    } else {
        const Slot row = view_[static_cast<std::size_t>(position_)];
        for (int i = 0; i < static_cast<int>(original_.size()); ++i)
            write_cell(row, i, original_[static_cast<std::size_t>(i)]);
        original_.clear();
        state_ = DataSetState::Browse;
        row_modified_ = false;
        const int position = position_;
        tell([position](DataSetListener& listener) { listener.row_changed(position); });
        tell_cursor();
        if (OnDataChange) OnDataChange(nullptr);
    }
    run(AfterCancel);
}

void TClientDataSet::remove_current() {
    const int position = position_;
    const Slot row = view_[static_cast<std::size_t>(position)];
    for (const auto& field : fields_)
        if (counts(field->Type)) sums_.add(field->index(), -store_.number(row, field->index()));
    view_.erase(view_.begin() + position);
    if (!alive_.empty() && alive_.back() == row)
        alive_.pop_back();
    else
        alive_.erase(std::find(alive_.begin(), alive_.end(), row));
    position_ = std::clamp(position, 0, std::max(0, RecordCount() - 1));
    bof_ = eof_ = view_.empty();
    tell([position](DataSetListener& listener) { listener.rows_removed(position, 1); });
    tell_cursor();
    if (OnDataChange) OnDataChange(nullptr);
    run(AfterScroll);
}

void TClientDataSet::Delete() {
    need_rows("Delete");
    if (state_ == DataSetState::Insert) return Cancel();
    if (state_ == DataSetState::Edit) Cancel();
    run(BeforeDelete);
    const Slot row = view_[static_cast<std::size_t>(position_)];
    changes_.row_deleted(row, row_values(row));
    remove_current();
    run(AfterDelete);
}

bool TClientDataSet::Modified() const {
    return !changes_.empty() || (editing() && row_modified_);
}

TClientDataSet::ChangeKinds TClientDataSet::Changes() const {
    return {!changes_.inserted.empty(), !changes_.changed.empty(), !changes_.deleted.empty()};
}

void TClientDataSet::MarkSaved() { changes_.clear(); }

} // namespace host
