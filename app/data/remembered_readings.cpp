// Digests of results, and asking again.
#include "app/data/remembered_readings.h"

#include <algorithm>
#include <bit>
#include <functional>

namespace app {

namespace {

// The first result set, which is the one that a query hands on.
class DigestOfFirstSet : public engines::ResultReceiver {
public:
    ResultDigest digest;
    void begin_set(std::span<const engines::Column> columns) override {
        if (sets_++ == 0) digest.begin_set(columns.size());
    }
    bool row(std::span<const engines::Value> cells) override {
        if (sets_ > 1) return false;
        digest.row(cells);
        return true;
    }

private:
    int sets_ = 0;
};

} // namespace

void ResultDigest::row(std::span<const engines::Value> cells) {
    for (const engines::Value& cell : cells) add(cell);
}

void ResultDigest::add(const engines::Value& cell) {
    using engines::ValueKind;
    add(static_cast<std::uint64_t>(cell.kind()));
    switch (cell.kind()) {
    case ValueKind::null: return;
    case ValueKind::decimal:
        add(static_cast<std::uint64_t>(cell.unscaled()));
        return add(static_cast<std::uint64_t>(cell.unscaled() >> 64));
    case ValueKind::real: return add(std::bit_cast<std::uint64_t>(cell.as_real()));
    case ValueKind::text:
    case ValueKind::guid:
    case ValueKind::binary: return add(std::hash<std::string_view>{}(cell.as_text()));
    default: return add(static_cast<std::uint64_t>(cell.as_integer()));
    }
}

void RememberedReadings::end_act() {
    if (!acts_.empty()) acts_.pop_back();
}

bool RememberedReadings::want_next() {
    if (acts_.empty()) return false;
    auto& changes = acts_.back().changes_by_others;
    if (!changes) changes = session_.change_count();
    return true;
}

void RememberedReadings::add(std::string_view query, const ResultDigest& digest) {
    acts_.back().readings.push_back({std::string(query), digest});
}

bool RememberedReadings::still_true() {
    if (acts_.empty() || acts_.back().readings.empty()) return true;
    const Act& act = acts_.back();
    if (session_.change_count() == act.changes_by_others) return true;
    return std::ranges::all_of(act.readings, [this](const Reading& reading) {
        DigestOfFirstSet now;
        return session_.read(reading.query, now).ok() && now.digest == reading.digest;
    });
}

void RememberedReadings::written() {
    if (!acts_.empty()) acts_.back() = {};
}

} // namespace app
