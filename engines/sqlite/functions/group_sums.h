// Sums of many rows by a few keys, gathered in one pass without sorting the rows.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace engines {

// A value of a key as SQLite holds it. Keys are told apart by their bytes; what the collation takes
// as equal stays apart here, and whoever reads the sums groups them once more.
struct KeyValue {
    enum class Kind : char { null, integer, real, text, bytes };
    Kind kind = Kind::null;
    std::int64_t integer = 0;
    double real = 0;
    std::string_view text; // of text and bytes
};

// Adds up integers by keys. Every row brings the same number of keys and of values.
//
// Example: rows (1001, 100), (1002, 5), (1001, 20) with one key give (1001, 120), (1002, 5), in the
// order in which the keys were first seen.
class GroupSums {
public:
    GroupSums(std::size_t keys, std::size_t values) : keys_(keys), values_(values) {}

    // One row: first its keys by key(), then its values by add(), the first at place 0. A value
    // left out is NULL. Answers false when a sum leaves 64 bits.
    void begin_row();
    void key(const KeyValue& value);
    void find_group();
    bool add(std::size_t place, std::int64_t value);

    // All groups in one text of bytes, as GroupReader reads them.
    std::string written() const;

private:
    struct Sum {
        std::int64_t total = 0;
        bool any = false; // a sum of nothing but NULLs is NULL
    };
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const {
            return std::hash<std::string_view>{}(text);
        }
    };

    std::size_t keys_, values_;
    std::string row_key_;
    std::size_t group_ = 0;
    std::unordered_map<std::string, std::size_t, Hash, std::equal_to<>> groups_;
    std::vector<const std::string*> order_; // keys of the map, by group
    std::vector<Sum> sums_;                 // values_ a group
};

// Reads what GroupSums has written, group by group; sums come as integers or NULL after the keys.
class GroupReader {
public:
    explicit GroupReader(std::string_view written);

    bool at_end() const { return columns_.empty(); }
    void next();
    // Keys and sums of the present group, in that order. Texts lie in what was written.
    const std::vector<KeyValue>& columns() const { return columns_; }

private:
    std::string_view rest_;
    std::size_t count_ = 0;
    std::vector<KeyValue> columns_;
};

} // namespace engines
