// Periods of the initial posting.
#include "app/books/initial_posting.h"

#include <gtest/gtest.h>

namespace app {
namespace {

std::string posting(int year, int month) {
    return initial_posting(host::Date::of(year, month, 1).value());
}

bool names(const std::string& batch, const std::string& period) {
    return batch.find("'" + period + "'") != std::string::npos;
}

} // namespace

TEST(InitialPosting, a_start_inside_the_year_keeps_the_years_opening_and_the_month_before) {
    const std::string batch = posting(2006, 5);
    EXPECT_TRUE(names(batch, "2006-05"));
    EXPECT_TRUE(names(batch, "2006-00"));
    EXPECT_TRUE(names(batch, "2006-04"));
}

TEST(InitialPosting, a_start_in_january_keeps_the_opening_of_the_year_before_and_its_december) {
    const std::string batch = posting(2006, 1);
    EXPECT_TRUE(names(batch, "2006-01"));
    EXPECT_TRUE(names(batch, "2005-00"));
    EXPECT_TRUE(names(batch, "2005-12"));
    EXPECT_FALSE(names(batch, "2006-00"));
}

} // namespace app
