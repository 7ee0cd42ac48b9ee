// Rows put in order: by which keys, what runs along, what is an error.
#include "engines/sqlite/executor/ordered_rows.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>

#include "engines/error.h"

namespace engines {
namespace {

using Running = tsql::RunningValue::Kind;
using Cell = std::optional<std::int64_t>;

class Ordered : public testing::Test {
protected:
    // keys: one letter a key, d for descending.
    void begin(const std::string& keys, std::vector<tsql::RunningValue> running,
               std::size_t cells) {
        order_.descending.clear();
        for (const char key : keys) order_.descending.push_back(key == 'd');
        order_.running = std::move(running);
        cells_ = cells;
        rows_.begin(order_, cells);
    }
    void row(std::initializer_list<Cell> cells) {
        for (const Cell& cell : cells) cell ? rows_.add(*cell) : rows_.add_null();
        rows_.end_row();
    }
    void row(std::string_view text, std::int64_t number) {
        rows_.add_text(RowCell::Kind::text, text);
        rows_.add(number);
        rows_.end_row();
    }
    // The column of every row as it is shown, NULL as "-".
    std::string shown(std::size_t column) {
        rows_.finish();
        std::string all;
        for (std::size_t at = 0; at < rows_.rows(); ++at) {
            const RowCell cell = rows_.cell(at, column);
            all += at == 0 ? "" : " ";
            if (cell.kind == RowCell::Kind::null) all += "-";
            if (cell.kind == RowCell::Kind::integer) all += std::to_string(cell.integer);
            if (cell.kind == RowCell::Kind::text) all += cell.text;
        }
        return all;
    }

    tsql::RowOrder order_;
    std::size_t cells_ = 0;
    OrderedRows rows_;
};

TEST_F(Ordered, the_second_key_decides_where_the_first_is_equal_and_null_comes_first) {
    begin("ad", {}, 2);
    row({2, 1});
    row({1, 5});
    row({1, std::nullopt});
    row({std::nullopt, 0});
    row({1, 9});
    EXPECT_EQ(shown(0), "- 1 1 1 2");
    EXPECT_EQ(shown(1), "0 9 5 - 1");
}

TEST_F(Ordered, rows_with_equal_keys_stay_as_they_came) {
    begin("a", {}, 2);
    row({2, 1});
    row({1, 2});
    row({2, 3});
    row({1, 4});
    EXPECT_EQ(shown(1), "2 4 1 3");
}

TEST_F(Ordered, texts_go_by_the_collation_without_case_and_trailing_blanks) {
    begin("a", {{Running::Number, 1, 0, 0}}, 2);
    row("乙", 1);
    row("B", 2);
    row("甲", 3);
    row("a", 4);
    row("b  ", 5);
    EXPECT_EQ(shown(1), "4 2 5 3 1");
    EXPECT_EQ(shown(2), "1 1 2 1 1");
}

TEST_F(Ordered, numbers_and_texts_under_one_key_are_told_apart) {
    begin("a", {}, 2);
    row("a", 1);
    row({7, 2});
    row({std::nullopt, 3});
    EXPECT_EQ(shown(1), "3 2 1");
}

TEST_F(Ordered, keys_too_far_apart_for_one_number_are_compared) {
    constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    begin("ada", {}, 4);
    row({most, least, 0, 1});
    row({least, most, 0, 2});
    row({least, least, 0, 3});
    row({0, 0, most, 4});
    row({0, 0, least, 5});
    EXPECT_EQ(shown(3), "2 3 5 4 1");
}

TEST_F(Ordered, a_sum_begins_anew_with_its_partition_only) {
    begin("aa", {{Running::Sum, 1, 2, 0}, {Running::Sum, 2, 2, 0}, {Running::Count, 0, 2, 0}}, 3);
    row({1, 1, 10});
    row({2, 1, 7});
    row({1, 2, 5});
    row({1, 1, std::nullopt});
    row({2, 1, 1});
    EXPECT_EQ(shown(2), "10 - 5 7 1");
    EXPECT_EQ(shown(3), "10 10 15 7 8");
    EXPECT_EQ(shown(4), "10 10 5 7 8");
    EXPECT_EQ(shown(5), "1 1 2 3 4");
}

TEST_F(Ordered, the_row_before_is_that_of_the_partition) {
    begin("aa", {{Running::Before, 1, 1, 2}, {Running::Before, 1, 1, -1}}, 3);
    row({1, 2, 80});
    row({1, 1, 90});
    row({2, 3, 70});
    EXPECT_EQ(shown(3), "90 1 70");
    EXPECT_EQ(shown(4), "- 1 -");
}

TEST_F(Ordered, a_sum_that_leaves_64_bits_is_an_error) {
    begin("a", {{Running::Sum, 0, 1, 0}}, 2);
    row({1, std::numeric_limits<std::int64_t>::max()});
    row({2, 1});
    try {
        rows_.finish();
        FAIL() << "no error";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.error().number, 8115);
    }
}

TEST_F(Ordered, its_memory_is_used_again_without_the_rows_of_before) {
    begin("a", {{Running::Sum, 0, 0, 0}}, 1);
    row({3});
    EXPECT_EQ(shown(1), "3");
    begin("d", {}, 1);
    row({1});
    row({2});
    EXPECT_EQ(shown(0), "2 1");
}

} // namespace
} // namespace engines
