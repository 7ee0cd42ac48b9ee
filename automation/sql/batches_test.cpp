// Cutting input into batches.
#include "automation/sql/batches.h"

#include <gtest/gtest.h>
#include <sstream>
#include <vector>

namespace automation {
namespace {

std::vector<std::string> batches_of(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> all;
    for (std::string batch; read_batch(in, batch);) all.push_back(batch);
    return all;
}

using Batches = std::vector<std::string>;

} // namespace

TEST(Batches, a_line_that_says_go_ends_a_batch_in_any_case_and_with_blanks_around) {
    EXPECT_EQ(batches_of("SELECT 1\nGO\nSELECT 2\n  go \r\nSELECT 3"),
              (Batches{"SELECT 1\n", "SELECT 2\n", "SELECT 3\n"}));
}

TEST(Batches, go_with_anything_beside_it_is_part_of_the_batch) {
    EXPECT_EQ(batches_of("SELECT 1 AS go\nGO 5\n"), (Batches{"SELECT 1 AS go\nGO 5\n"}));
}

TEST(Batches, empty_batches_are_left_out) {
    EXPECT_EQ(batches_of("\nGO\n  \nGO\nSELECT 1\nGO\n\n"), (Batches{"SELECT 1\n"}));
    EXPECT_TRUE(batches_of("").empty());
}

} // namespace automation
