// Structure and content of a dataset: its fields, opening, closing, copying, telling who listens.
#include "host/dataset/client_dataset.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "host/values/text.h"

namespace host {

TClientDataSet::TClientDataSet() = default;

TClientDataSet::~TClientDataSet() {
    for (DataSetListener* listener : std::vector(listeners_)) listener->dataset_gone();
}

TField& TClientDataSet::DefineField(const std::string& name, FieldType type, int size) {
    if (TField* known = FindField(name)) {
        if (known->Type != type)
            throw std::logic_error("field " + name + " is already defined with another type");
        known->Size = size;
        known->defined_ = true;
        return *known;
    }
    auto field = std::make_unique<TField>();
    field->FieldName = name;
    field->Type = type;
    field->Size = size;
    field->dataset_ = this;
    field->index_ = static_cast<int>(fields_.size());
    field->defined_ = true;
    store_.add_column(type);
    fields_.push_back(std::move(field));
    return *fields_.back();
}

const TField* TClientDataSet::FindField(const std::string& name) const {
    for (const auto& field : fields_)
        if (same_text(field->FieldName, name)) return field.get();
    return nullptr;
}

TField* TClientDataSet::FindField(const std::string& name) {
    return const_cast<TField*>(std::as_const(*this).FindField(name));
}

const TField& TClientDataSet::FieldByName(const std::string& name) const {
    if (const TField* field = FindField(name)) return *field;
    throw std::logic_error("dataset has no field " + name);
}

TField& TClientDataSet::FieldByName(const std::string& name) {
    return const_cast<TField&>(std::as_const(*this).FieldByName(name));
}

void TClientDataSet::drop_rows() {
    store_.clear();
    alive_.clear();
    view_.clear();
    changes_.clear();
    sums_.forget();
    original_.clear();
    row_modified_ = false;
    position_ = 0;
    bof_ = eof_ = true;
}

void TClientDataSet::Open() {
    drop_rows();
    state_ = DataSetState::Browse;
    tell_reset();
}

void TClientDataSet::Close() {
    if (!Active() && view_.empty()) return;
    drop_rows();
    state_ = DataSetState::Inactive;
    tell_reset();
}

void TClientDataSet::EmptyDataSet() { Open(); }

std::unique_ptr<DataSetLoader> TClientDataSet::loader() {
    return std::make_unique<DataSetLoader>(*this);
}

std::size_t TClientDataSet::bytes() const {
    return store_.bytes() + (alive_.capacity() + view_.capacity()) * sizeof(Slot);
}

void TClientDataSet::CopyFrom(const TClientDataSet& other) {
    drop_rows();
    std::vector<FieldType> types;
    std::vector<std::unique_ptr<TField>> fields;
    for (const auto& theirs : other.fields_) {
        auto field = std::make_unique<TField>();
        if (const TField* mine = FindField(theirs->FieldName)) *field = *mine;
        field->FieldName = theirs->FieldName;
        field->Type = theirs->Type;
        field->Size = theirs->Size;
        field->DisplayFormat = theirs->DisplayFormat;
        field->DisplayLabel = theirs->DisplayLabel;
        types.push_back(field->Type);
        fields.push_back(std::move(field));
    }
    RecordStore rows;
    rows.define(types);
    for (const Slot theirs : other.view_) {
        const Slot row = rows.append();
        for (int i = 0; i < static_cast<int>(types.size()); ++i)
            if (!other.store_.is_null(theirs, i)) rows.set(row, i, other.store_.value(theirs, i));
    }
    take_rows(std::move(rows), std::move(fields));
}

// The rows become the content; the view is made anew by the filter and order in force.
void TClientDataSet::take_rows(RecordStore&& rows, std::vector<std::unique_ptr<TField>>&& fields) {
    drop_rows();
    store_ = std::move(rows);
    fields_ = std::move(fields);
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        fields_[i]->dataset_ = this;
        fields_[i]->index_ = static_cast<int>(i);
    }
    alive_.resize(store_.rows());
    for (std::size_t row = 0; row < alive_.size(); ++row) alive_[row] = static_cast<Slot>(row);
    if (!sort_field_.empty() && FindField(sort_field_) == nullptr) sort_field_.clear();
    state_ = DataSetState::Browse;
    rebuild_view();
    reset_view(true);
}

void TClientDataSet::add_listener(DataSetListener* listener) { listeners_.push_back(listener); }

void TClientDataSet::remove_listener(DataSetListener* listener) {
    std::erase(listeners_, listener);
}

void TClientDataSet::EnableControls() {
    if (disabled_ == 0 || --disabled_ > 0 || !reset_due_) return;
    reset_due_ = false;
    tell_reset();
}

void TClientDataSet::tell(const std::function<void(DataSetListener&)>& news) {
    if (disabled_ > 0) {
        reset_due_ = true;
        return;
    }
    if (listeners_.size() == 1) return news(*listeners_.front());
    for (DataSetListener* listener : std::vector(listeners_))
        if (std::find(listeners_.begin(), listeners_.end(), listener) != listeners_.end())
            news(*listener);
}

void TClientDataSet::tell_reset() {
    tell([](DataSetListener& listener) { listener.dataset_reset(); });
    if (OnDataChange) OnDataChange(nullptr);
}

void TClientDataSet::tell_cursor() {
    const int row = RecNo();
    tell([row](DataSetListener& listener) { listener.cursor_moved(row); });
}

} // namespace host
