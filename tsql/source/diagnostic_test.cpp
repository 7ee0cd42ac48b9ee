// A refusal shows its place under the text.
#include "tsql/source/diagnostic.h"

#include <gtest/gtest.h>

namespace tsql {
namespace {

TEST(Diagnostic, the_caret_stands_under_the_refused_word) {
    const std::string_view batch = "SELECT KM_IDX FROM D6801";
    const Diagnostic seen = diagnose(batch, Refusal(207, {7, 13}, "Invalid column name 'KM_IDX'."));
    EXPECT_EQ(seen.number, 207);
    EXPECT_EQ(seen.text(), "1:8 Invalid column name 'KM_IDX'.\n"
                           "SELECT KM_IDX FROM D6801\n"
                           "       ^^^^^^");
}

TEST(Diagnostic, full_width_characters_before_the_caret_take_two_cells) {
    const std::string_view batch = "\tA='借' X";
    const auto at = static_cast<std::uint32_t>(batch.find('X'));
    EXPECT_EQ(diagnose(batch, Refusal(102, {at, at + 1}, "no")).text(),
              "1:8 no\n A='借' X\n        ^");
}

TEST(Diagnostic, a_stretch_over_several_lines_is_marked_to_the_end_of_its_first) {
    const std::string_view batch = "SELECT 'a\nb'";
    EXPECT_EQ(diagnose(batch, Refusal(105, {7, 12}, "open")).text(),
              "1:8 open\nSELECT 'a\n       ^^");
}

TEST(Diagnostic, the_end_of_the_text_is_a_place_too) {
    EXPECT_EQ(diagnose("SELECT", Refusal(102, {6, 6}, "end")).text(), "1:7 end\nSELECT\n      ^");
}

} // namespace
} // namespace tsql
