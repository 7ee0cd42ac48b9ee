// The order in which a dataset shows its rows.
#include <algorithm>
#include <limits>
#include <numeric>
#include <stdexcept>

#include "host/dataset/client_dataset.h"
#include "host/dataset/field_names.h"
#include "host/dataset/pinyin_order.h"
#include "host/values/text.h"

namespace host {

namespace {

// One number a row by which the rows order; empty cells come first.
std::vector<std::int64_t> sort_numbers(const RecordStore& store, const std::vector<Slot>& rows,
                                       int field) {
    std::vector<std::int64_t> numbers(rows.size());
    if (store.type(field) == FieldType::Text) {
        std::vector<std::string_view> texts(rows.size());
        for (std::size_t i = 0; i < rows.size(); ++i) texts[i] = store.text(rows[i], field);
        const std::vector<std::uint32_t> ranks = pinyin_ranks(texts);
        std::copy(ranks.begin(), ranks.end(), numbers.begin());
    } else {
        for (std::size_t i = 0; i < rows.size(); ++i) numbers[i] = store.number(rows[i], field);
    }
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (store.is_null(rows[i], field)) numbers[i] = std::numeric_limits<std::int64_t>::min();
    return numbers;
}

// Stable in both directions: equal rows keep the order they have.
std::vector<Slot> in_order_of(const std::vector<std::int64_t>& numbers,
                              const std::vector<Slot>& rows, bool descending) {
    std::vector<std::uint32_t> order(rows.size());
    std::iota(order.begin(), order.end(), 0U);
    if (descending)
        std::stable_sort(order.begin(), order.end(),
                         [&](auto a, auto b) { return numbers[a] > numbers[b]; });
    else
        std::stable_sort(order.begin(), order.end(),
                         [&](auto a, auto b) { return numbers[a] < numbers[b]; });
    std::vector<Slot> sorted(rows.size());
    for (std::size_t i = 0; i < order.size(); ++i) sorted[i] = rows[order[i]];
    return sorted;
}

} // namespace

void TClientDataSet::rebuild_view() {
    in_order_ = true;
    view_.clear();
    view_.reserve(alive_.size());
    for (const Slot row : alive_)
        if (passes(row)) view_.push_back(row);
    // From the last field to the first: what the later ones put in order stays so among equals.
    std::vector<std::string> fields = field_names(sort_field_);
    for (; !fields.empty(); fields.pop_back()) {
        const int field = FieldByName(fields.back()).index();
        view_ = in_order_of(sort_numbers(store_, view_, field), view_, sort_descending_);
    }
}

// `field` may be a list: rows that are equal in one field order by the next.
void TClientDataSet::SortBy(const std::string& field, bool descending) {
    LeaveRow();
    const std::int64_t before = current_slot();
    const bool as_before = same_text(field, sort_field_) && descending == sort_descending_;
    sort_field_.clear();
    for (const std::string& name : field_names(field))
        sort_field_ += (sort_field_.empty() ? "" : ",") + FieldByName(name).FieldName;
    sort_descending_ = descending;
    if (!Active()) return;
    if (!as_before || !in_order_) rebuild_view();
    // The person keeps looking at the row he was on.
    const auto at = std::find(view_.begin(), view_.end(), static_cast<Slot>(before));
    position_ = at == view_.end() ? 0 : static_cast<int>(at - view_.begin());
    reset_view(false);
}

} // namespace host
