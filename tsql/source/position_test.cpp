// Lines and columns as an editor counts them.
#include "tsql/source/position.h"

#include <gtest/gtest.h>

namespace tsql {
namespace {

TEST(Position, the_first_byte_is_line_one_column_one) {
    EXPECT_EQ(locate("SELECT 1", 0), (LineColumn{1, 1}));
}

TEST(Position, a_chinese_character_is_one_column) {
    const std::string_view batch = "SELECT '借' X";
    EXPECT_EQ(locate(batch, static_cast<std::uint32_t>(batch.find('X'))), (LineColumn{1, 12}));
}

TEST(Position, every_kind_of_line_break_ends_one_line) {
    const std::string_view batch = "a\nb\r\nc\rd";
    EXPECT_EQ(locate(batch, 2), (LineColumn{2, 1}));
    EXPECT_EQ(locate(batch, 5), (LineColumn{3, 1}));
    EXPECT_EQ(locate(batch, 7), (LineColumn{4, 1}));
}

TEST(Position, an_offset_past_the_end_means_the_end) {
    EXPECT_EQ(locate("ab", 99), (LineColumn{1, 3}));
}

TEST(Position, the_line_around_an_offset_has_no_line_break) {
    const std::string_view batch = "a\r\nbcd\r\ne";
    EXPECT_EQ(line_around(batch, 4), "bcd");
    EXPECT_EQ(line_around(batch, 0), "a");
    EXPECT_EQ(line_around(batch, 99), "e");
}

} // namespace
} // namespace tsql
