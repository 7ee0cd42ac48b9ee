// Finds the group of a row by the bytes of its keys.
#include "engines/sqlite/functions/group_sums.h"

#include <cstring>

namespace engines {
namespace {

template <typename Number> void put(Number number, std::string& to) {
    char bytes[sizeof number];
    std::memcpy(bytes, &number, sizeof number);
    to.append(bytes, sizeof number);
}

template <typename Number> Number take(std::string_view& from) {
    Number number;
    std::memcpy(&number, from.data(), sizeof number);
    from.remove_prefix(sizeof number);
    return number;
}

void put_value(const KeyValue& value, std::string& to) {
    to += static_cast<char>(value.kind);
    switch (value.kind) {
    case KeyValue::Kind::null: break;
    case KeyValue::Kind::integer: put(value.integer, to); break;
    case KeyValue::Kind::real: put(value.real, to); break;
    default:
        put(static_cast<std::uint32_t>(value.text.size()), to);
        to += value.text;
    }
}

KeyValue take_value(std::string_view& from) {
    KeyValue value;
    value.kind = static_cast<KeyValue::Kind>(from.front());
    from.remove_prefix(1);
    switch (value.kind) {
    case KeyValue::Kind::null: break;
    case KeyValue::Kind::integer: value.integer = take<std::int64_t>(from); break;
    case KeyValue::Kind::real: value.real = take<double>(from); break;
    default: {
        const auto size = take<std::uint32_t>(from);
        value.text = from.substr(0, size);
        from.remove_prefix(size);
    }
    }
    return value;
}

} // namespace

void GroupSums::begin_row() {
    row_key_.clear();
}

void GroupSums::key(const KeyValue& value) {
    put_value(value, row_key_);
}

void GroupSums::find_group() {
    if (const auto found = groups_.find(std::string_view(row_key_)); found != groups_.end()) {
        group_ = found->second;
        return;
    }
    group_ = order_.size();
    const auto made = groups_.emplace(row_key_, group_).first;
    order_.push_back(&made->first);
    sums_.resize(sums_.size() + values_);
}

bool GroupSums::add(std::size_t place, std::int64_t value) {
    Sum& sum = sums_[group_ * values_ + place];
    sum.any = true;
    return !__builtin_add_overflow(sum.total, value, &sum.total);
}

std::string GroupSums::written() const {
    std::string text;
    put(static_cast<std::uint32_t>(keys_ + values_), text);
    for (std::size_t group = 0; group < order_.size(); ++group) {
        text += *order_[group];
        for (std::size_t i = 0; i < values_; ++i) {
            const Sum& sum = sums_[group * values_ + i];
            KeyValue value;
            if (sum.any) value.kind = KeyValue::Kind::integer, value.integer = sum.total;
            put_value(value, text);
        }
    }
    return text;
}

GroupReader::GroupReader(std::string_view written) : rest_(written) {
    if (!rest_.empty()) count_ = take<std::uint32_t>(rest_);
    next();
}

void GroupReader::next() {
    columns_.clear();
    if (rest_.empty()) return;
    for (std::size_t i = 0; i < count_; ++i) columns_.push_back(take_value(rest_));
}

} // namespace engines
