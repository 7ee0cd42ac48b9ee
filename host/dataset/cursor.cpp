// The cursor of a dataset: moving, finding, reading other rows without moving.
#include <algorithm>
#include <stdexcept>

#include "host/dataset/client_dataset.h"
#include "host/values/text.h"

namespace host {

std::int64_t TClientDataSet::current_slot() const {
    if (peeked_ != no_row) return peeked_;
    if (view_.empty()) return no_row;
    return view_[static_cast<std::size_t>(position_)];
}

void TClientDataSet::move_to(int position, bool bof, bool eof) {
    const bool moved = position != position_;
    position_ = position;
    bof_ = bof || view_.empty();
    eof_ = eof || view_.empty();
    if (!moved) return;
    tell_cursor();
    if (OnDataChange) OnDataChange(nullptr);
    if (AfterScroll) AfterScroll();
}

void TClientDataSet::First() {
    LeaveRow();
    move_to(0, true, false);
}

void TClientDataSet::Last() {
    LeaveRow();
    move_to(std::max(0, RecordCount() - 1), false, true);
}

void TClientDataSet::Next() {
    LeaveRow();
    if (position_ + 1 < RecordCount())
        move_to(position_ + 1, false, false);
    else
        move_to(position_, bof_, true);
}

void TClientDataSet::Prior() {
    LeaveRow();
    if (position_ > 0)
        move_to(position_ - 1, false, false);
    else
        move_to(position_, true, eof_);
}

void TClientDataSet::GotoRow(int row) {
    if (row == RecNo()) return;
    LeaveRow();
    if (view_.empty()) return;
    move_to(std::clamp(row, 0, RecordCount() - 1), false, false);
}

bool TClientDataSet::Locate(const std::string& field, const std::string& text) {
    const int index = FieldByName(field).index();
    for (int row = 0; row < RecordCount(); ++row) {
        if (!same_text(text_at(row, index), text)) continue;
        GotoRow(row);
        bof_ = eof_ = false;
        return true;
    }
    return false;
}

Value TClientDataSet::value_at(int row, int field) const {
    return store_.value(view_.at(static_cast<std::size_t>(row)), field);
}

std::string TClientDataSet::text_at(int row, int field) const {
    const Slot slot = view_.at(static_cast<std::size_t>(row));
    if (store_.type(field) == FieldType::Text) return std::string(store_.text(slot, field));
    return to_text(store_.value(slot, field));
}

std::string TClientDataSet::display_at(int row, int field) const {
    const Peek peek(*this, row);
    return fields_[static_cast<std::size_t>(field)]->DisplayText();
}

TClientDataSet::Peek::Peek(const TClientDataSet& dataset, int row)
    : dataset_(dataset), before_(dataset.peeked_) {
    dataset.peeked_ = dataset.view_.at(static_cast<std::size_t>(row));
}

} // namespace host
