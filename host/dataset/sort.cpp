// The order in which a dataset shows its rows.
#include <algorithm>
#include <limits>
#include <numeric>
#include <stdexcept>

#include "host/dataset/client_dataset.h"
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

} // namespace

void TClientDataSet::rebuild_view() {
    in_order_ = true;
    view_.clear();
    view_.reserve(alive_.size());
    for (const Slot row : alive_)
        if (passes(row)) view_.push_back(row);
    if (sort_field_.empty()) return;
    const std::vector<std::int64_t> numbers =
        sort_numbers(store_, view_, FieldByName(sort_field_).index());
    std::vector<std::uint32_t> order(view_.size());
    std::iota(order.begin(), order.end(), 0U);
    // Stable in both directions: equal rows keep the order they were loaded in.
    if (sort_descending_)
        std::stable_sort(order.begin(), order.end(),
                         [&](auto a, auto b) { return numbers[a] > numbers[b]; });
    else
        std::stable_sort(order.begin(), order.end(),
                         [&](auto a, auto b) { return numbers[a] < numbers[b]; });
    std::vector<Slot> sorted(view_.size());
    for (std::size_t i = 0; i < order.size(); ++i) sorted[i] = view_[order[i]];
    view_ = std::move(sorted);
}

void TClientDataSet::SortBy(const std::string& field, bool descending) {
    LeaveRow();
    const std::int64_t before = current_slot();
    const bool as_before = same_text(field, sort_field_) && descending == sort_descending_;
    if (!field.empty()) sort_field_ = FieldByName(field).FieldName;
    if (field.empty()) sort_field_.clear();
    sort_descending_ = descending;
    if (!Active()) return;
    if (!as_before || !in_order_) rebuild_view();
    // The person keeps looking at the row he was on.
    const auto at = std::find(view_.begin(), view_.end(), static_cast<Slot>(before));
    position_ = at == view_.end() ? 0 : static_cast<int>(at - view_.begin());
    reset_view(false);
}

} // namespace host
