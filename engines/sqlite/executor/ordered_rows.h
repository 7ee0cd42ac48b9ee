// Rows put in order once, with values that run along with them: sums, counts, the row before.
#pragma once

#include <bit>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tsql/plan/plan.h"

namespace engines {

// A cell as SQLite holds it. Texts and bytes are views into the rows.
struct RowCell {
    enum class Kind : std::uint8_t { null, integer, real, text, bytes };
    Kind kind = Kind::null;
    std::int64_t integer = 0;
    double real = 0;
    std::string_view text; // of text and bytes
};

// Takes rows in any order and shows them in theirs: by the cells that come first, the keys, NULLs
// before numbers before texts, texts by the collation; rows with equal keys as they came. Keeps its
// memory for the next use.
//
// Example: rows (2, 10), (1, 5), (1, 7) with one key and the running sum of cell 1 within it are
// shown as (1, 5, 5), (1, 7, 12), (2, 10, 10).
class OrderedRows {
public:
    // Empties it. cells: of every row that will come. The order outlives the rows.
    void begin(const tsql::RowOrder& order, std::size_t cells);
    // The next cell of the row that comes; a row is whole when all its cells are there.
    void add_null() { place(RowCell::Kind::null, 0); }
    void add(std::int64_t value) { place(RowCell::Kind::integer, value); }
    void add_real(double value);
    void add_text(RowCell::Kind kind, std::string_view value);
    void end_row();
    // Puts the rows in order and lets the values run. Error 8115 when a sum leaves 64 bits.
    void finish();

    std::size_t rows() const { return rows_; }
    // Columns from `cells` on are the running values.
    RowCell cell(std::size_t row, std::size_t column) const {
        const bool runs = column >= cells_;
        const std::size_t at = runs ? row * order_->running.size() + column - cells_
                                    : shown_[row] * cells_ + column;
        return cell_of(runs ? run_kinds_[at] : kinds_[at], runs ? run_values_[at] : values_[at]);
    }
    // Whether the keys of a row are those of the row before.
    bool continues(std::size_t row) const;
    std::size_t bytes() const;

private:
    using Kind = RowCell::Kind;
    __extension__ typedef unsigned __int128 Key;
    // Keys of a row as one number that orders as they do.
    struct Packed {
        Key key;
        std::uint32_t row;
    };
    // What the cells of one key are, over all rows.
    struct Spread {
        bool nulls = false, integers = false, texts = false, others = false;
        std::int64_t least = INT64_MAX, most = INT64_MIN;
    };

    void place(Kind kind, std::int64_t value) {
        kinds_.push_back(kind);
        values_.push_back(value);
    }
    // A text's place and size in texts_ share one number.
    static constexpr int size_bits = 30;
    static constexpr std::size_t longest_text = (std::size_t{1} << size_bits) - 1;
    std::string_view text_of(std::int64_t value) const {
        const auto packed = static_cast<std::uint64_t>(value);
        return {texts_.data() + (packed >> size_bits), packed & longest_text};
    }
    RowCell cell_of(Kind kind, std::int64_t value) const {
        RowCell cell;
        cell.kind = kind;
        if (kind == Kind::integer)
            cell.integer = value;
        else if (kind == Kind::real)
            cell.real = std::bit_cast<double>(value);
        else if (kind != Kind::null)
            cell.text = text_of(value);
        return cell;
    }
    std::string_view text_at(std::size_t at) const { return text_of(values_[at]); }
    int compare_cells(std::size_t left, std::size_t right) const;
    // Compares the first `keys` keys of two rows as they came.
    int compare_rows(std::size_t left, std::size_t right, std::size_t keys) const;
    void sort();
    bool pack(std::vector<Packed>& packed) const;
    bool pack_key(std::size_t key, std::vector<Packed>& packed, int& bits) const;
    bool is_same_in_all(std::size_t key) const;
    Spread spread_of(std::size_t key) const;
    std::vector<std::uint64_t> ranks_of(std::size_t key) const;
    void run();
    void step(std::size_t running, std::size_t row, bool first);

    const tsql::RowOrder* order_ = nullptr;
    std::size_t cells_ = 0;
    std::size_t rows_ = 0;
    bool in_order_ = true;
    std::vector<Kind> kinds_;          // cells_ a row, as the rows came
    std::vector<std::int64_t> values_; // likewise; of a text its place and size in texts_
    std::string texts_;
    std::vector<std::uint32_t> shown_; // rows as they are shown
    std::vector<Kind> run_kinds_;      // by shown row
    std::vector<std::int64_t> run_values_;
};

} // namespace engines
