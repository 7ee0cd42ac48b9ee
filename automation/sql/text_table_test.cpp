// Tables for the eye.
#include "automation/sql/text_table.h"

#include <gtest/gtest.h>
#include <sstream>

namespace automation {

TEST(TextTable, chinese_counts_two_columns_and_numbers_stand_to_the_right) {
    std::ostringstream out;
    print_table({{"科目", "J"}, {{"现金", "12.50"}, {"A", "-3.00"}, {std::nullopt, std::nullopt}}},
                out);
    EXPECT_EQ(out.str(), "科目      J\n"
                         "----  -----\n"
                         "现金  12.50\n"
                         "A     -3.00\n"
                         "NULL   NULL\n");
}

TEST(TextTable, a_text_with_line_breaks_stays_on_one_line) {
    std::ostringstream out;
    print_table({{"A"}, {{"x\ny"}}}, out);
    EXPECT_EQ(out.str(), "A  \n---\nx y\n");
}

} // namespace automation
