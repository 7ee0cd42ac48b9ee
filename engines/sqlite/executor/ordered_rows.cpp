// Sorts by numbers packed from the keys where they fit, else by comparing cell by cell.
#include "engines/sqlite/executor/ordered_rows.h"

#include <algorithm>
#include <bit>
#include <numeric>
#include <unordered_map>

#include "engines/sqlite/collation/compare_text.h"
#include "engines/sqlite/raise.h"

namespace engines {
namespace {

constexpr int packed_bits = 128;

} // namespace

// ---- rows as they come

void OrderedRows::begin(const tsql::RowOrder& order, std::size_t cells) {
    order_ = &order;
    cells_ = cells;
    rows_ = 0;
    in_order_ = true;
    kinds_.clear();
    values_.clear();
    texts_.clear();
}

void OrderedRows::add_real(double value) {
    place(Kind::real, std::bit_cast<std::int64_t>(value));
}

void OrderedRows::add_text(Kind kind, std::string_view value) {
    // Names repeat from row to row; they are kept once.
    if (kinds_.size() >= cells_) {
        const std::size_t above = kinds_.size() - cells_;
        if (kinds_[above] == kind && text_at(above) == value) return place(kind, values_[above]);
    }
    if (value.size() > longest_text)
        raise_error(8152, "String or binary data would be truncated.");
    place(kind, static_cast<std::int64_t>(texts_.size() << size_bits | value.size()));
    texts_ += value;
}

void OrderedRows::end_row() {
    if (in_order_ && rows_ > 0)
        in_order_ = compare_rows(rows_ - 1, rows_, order_->descending.size()) <= 0;
    ++rows_;
}

// ---- their order

int OrderedRows::compare_cells(std::size_t left, std::size_t right) const {
    if (kinds_[left] == Kind::integer && kinds_[right] == Kind::integer)
        return (values_[left] > values_[right]) - (values_[left] < values_[right]);
    const auto number = [this](std::size_t at) {
        return kinds_[at] == Kind::real ? std::bit_cast<double>(values_[at])
                                        : static_cast<double>(values_[at]);
    };
    const auto group = [](Kind kind) { return kind == Kind::real ? Kind::integer : kind; };
    const Kind kind = group(kinds_[left]);
    if (kind != group(kinds_[right])) return kind < group(kinds_[right]) ? -1 : 1;
    switch (kind) {
    case Kind::null: return 0;
    case Kind::integer: return (number(left) > number(right)) - (number(left) < number(right));
    case Kind::text:
        return values_[left] == values_[right] ? 0 : compare_text(text_at(left), text_at(right));
    default: return text_at(left).compare(text_at(right));
    }
}

int OrderedRows::compare_rows(std::size_t left, std::size_t right, std::size_t keys) const {
    for (std::size_t key = 0; key < keys; ++key) {
        const int order = compare_cells(left * cells_ + key, right * cells_ + key);
        if (order != 0) return order_->descending[key] ? -order : order;
    }
    return 0;
}

// Places of the texts of a key in their own order, equal texts sharing one; 0 for NULL.
std::vector<std::uint64_t> OrderedRows::ranks_of(std::size_t key) const {
    std::unordered_map<std::string_view, std::uint64_t> ranks;
    std::vector<std::uint64_t*> known(rows_, nullptr); // by row
    for (std::size_t row = 0; row < rows_; ++row) {
        const std::size_t at = row * cells_ + key;
        if (kinds_[at] != Kind::text) continue;
        const bool as_above = row > 0 && known[row - 1] && values_[at] == values_[at - cells_];
        known[row] = as_above ? known[row - 1] : &ranks[text_at(at)];
    }
    std::vector<std::string_view> texts;
    for (const auto& [text, rank] : ranks) texts.push_back(text);
    std::sort(texts.begin(), texts.end(),
              [](std::string_view a, std::string_view b) { return compare_text(a, b) < 0; });
    std::uint64_t rank = 0;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (i == 0 || compare_text(texts[i - 1], texts[i]) != 0) ++rank;
        ranks[texts[i]] = rank;
    }
    std::vector<std::uint64_t> places(rows_, 0);
    for (std::size_t row = 0; row < rows_; ++row)
        if (known[row]) places[row] = *known[row];
    return places;
}

bool OrderedRows::is_same_in_all(std::size_t key) const {
    for (std::size_t at = key; at < kinds_.size(); at += cells_)
        if (kinds_[at] != kinds_[key] || values_[at] != values_[key]) return false;
    return true;
}

OrderedRows::Spread OrderedRows::spread_of(std::size_t key) const {
    Spread spread;
    for (std::size_t at = key; at < kinds_.size(); at += cells_) {
        switch (kinds_[at]) {
        case Kind::null: spread.nulls = true; break;
        case Kind::integer:
            spread.integers = true;
            spread.least = std::min(spread.least, values_[at]);
            spread.most = std::max(spread.most, values_[at]);
            break;
        case Kind::text: spread.texts = true; break;
        default: spread.others = true;
        }
    }
    return spread;
}

// A key takes as many bits as its values are apart; one that is the same in all rows takes none.
bool OrderedRows::pack_key(std::size_t key, std::vector<Packed>& packed, int& bits) const {
    if (is_same_in_all(key)) return true;
    const Spread spread = spread_of(key);
    if (spread.others || (spread.integers && spread.texts)) return false;
    std::vector<std::uint64_t> ranks;
    std::uint64_t greatest = 0;
    const auto least = static_cast<std::uint64_t>(spread.least);
    if (spread.texts) {
        ranks = ranks_of(key);
        greatest = *std::max_element(ranks.begin(), ranks.end());
    } else if (spread.integers) {
        greatest = static_cast<std::uint64_t>(spread.most) - least;
        if (greatest == UINT64_MAX) return false;
        greatest += spread.nulls ? 1 : 0;
    }
    const int needed = std::bit_width(greatest);
    if (needed == 0) return true;
    if ((bits += needed) > packed_bits) return false;
    for (std::size_t row = 0; row < rows_; ++row) {
        const std::size_t at = row * cells_ + key;
        std::uint64_t place = 0;
        if (spread.texts)
            place = ranks[row];
        else if (kinds_[at] == Kind::integer)
            place = static_cast<std::uint64_t>(values_[at]) - least + (spread.nulls ? 1 : 0);
        if (order_->descending[key]) place = greatest - place;
        packed[row].key = packed[row].key << needed | place;
    }
    return true;
}

bool OrderedRows::pack(std::vector<Packed>& packed) const {
    int bits = 0;
    for (std::size_t key = 0; key < order_->descending.size(); ++key)
        if (!pack_key(key, packed, bits)) return false;
    return true;
}

void OrderedRows::sort() {
    std::vector<Packed> packed(rows_);
    for (std::size_t row = 0; row < rows_; ++row)
        packed[row] = {0, static_cast<std::uint32_t>(row)};
    if (pack(packed)) {
        std::sort(packed.begin(), packed.end(), [](const Packed& a, const Packed& b) {
            return a.key != b.key ? a.key < b.key : a.row < b.row;
        });
        for (std::size_t i = 0; i < rows_; ++i) shown_[i] = packed[i].row;
        return;
    }
    std::stable_sort(shown_.begin(), shown_.end(), [this](std::uint32_t a, std::uint32_t b) {
        return compare_rows(a, b, order_->descending.size()) < 0;
    });
}

void OrderedRows::finish() {
    shown_.resize(rows_);
    std::iota(shown_.begin(), shown_.end(), 0U);
    if (!in_order_) sort();
    run();
}

// ---- values that run along

// The value at the shown row from the one at the row before.
void OrderedRows::step(std::size_t running, std::size_t row, bool first) {
    const tsql::RunningValue& wanted = order_->running[running];
    const std::size_t here = row * order_->running.size() + running;
    const std::size_t before = here - order_->running.size();
    const auto cell = [this](std::size_t shown, int column) {
        return shown_[shown] * cells_ + static_cast<std::size_t>(column);
    };
    Kind& kind = run_kinds_[here];
    std::int64_t& value = run_values_[here];
    using Running = tsql::RunningValue::Kind;
    if (wanted.kind == Running::Before) {
        kind = Kind::null;
        if (first && wanted.otherwise < 0) return;
        const std::size_t from =
            first ? cell(row, wanted.otherwise) : cell(row - 1, wanted.cell);
        kind = kinds_[from];
        value = values_[from];
        return;
    }
    const bool sums = wanted.kind == Running::Sum;
    kind = first ? (sums ? Kind::null : Kind::integer) : run_kinds_[before];
    value = first ? 0 : run_values_[before];
    const std::size_t at = cell(row, wanted.cell);
    if (wanted.kind != Running::Number && kinds_[at] == Kind::null) return;
    kind = Kind::integer;
    if (__builtin_add_overflow(value, sums ? values_[at] : 1, &value)) raise_overflow("bigint");
}

void OrderedRows::run() {
    const std::size_t count = order_->running.size();
    run_kinds_.resize(rows_ * count);
    run_values_.resize(rows_ * count);
    for (std::size_t row = 0; row < rows_; ++row) {
        int compared = -1;
        bool first = row == 0;
        for (std::size_t i = 0; i < count; ++i) {
            const int partition = order_->running[i].partition;
            if (row > 0 && partition != compared) {
                first = compare_rows(shown_[row - 1], shown_[row],
                                     static_cast<std::size_t>(partition)) != 0;
                compared = partition;
            }
            step(i, row, first);
        }
    }
}

// ---- what is shown

bool OrderedRows::continues(std::size_t row) const {
    return row > 0 &&
           compare_rows(shown_[row - 1], shown_[row], order_->descending.size()) == 0;
}

std::size_t OrderedRows::bytes() const {
    return kinds_.capacity() + values_.capacity() * sizeof(std::int64_t) + texts_.capacity() +
           shown_.capacity() * sizeof(std::uint32_t) + run_kinds_.capacity() +
           run_values_.capacity() * sizeof(std::int64_t);
}

} // namespace engines
