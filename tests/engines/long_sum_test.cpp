// Sums of many terms give what short ones give, overflows and NULLs included.
#include <gtest/gtest.h>

#include "tests/engines/small_books.h"

namespace tests {

namespace {

// "first+repeated+repeated…" with so many repetitions; `repeated` begins with its sign.
std::string sum_of(const std::string& first, const std::string& repeated, int times) {
    std::string text = "SELECT " + first;
    for (int i = 0; i < times; ++i) text += repeated;
    return text;
}

class LongSum : public testing::Test {
protected:
    std::string value(const std::string& select) { return cell(*session, select); }
    int error(const std::string& select) {
        const engines::Outcome outcome = run(*session, select);
        return outcome.ok() ? 0 : outcome.error->number;
    }
    const TemporaryFolder folder;
    const std::unique_ptr<engines::Session> session = create(folder.file("a.zf"));
};

} // namespace

TEST_F(LongSum, is_the_same_for_any_number_of_terms) {
    for (const int times : {1, 14, 15, 16, 49, 50, 51, 99, 100, 101, 180}) {
        const std::string whole = std::to_string(1 + 3 * times);
        EXPECT_EQ(value(sum_of("1", "+3", times)), whole) << times;
        EXPECT_EQ(value(sum_of("1.00", "+3", times)), whole + ".00") << times;
        EXPECT_EQ(value(sum_of("1.5", "+4-1.25+0.25", times)), whole + ".50") << times;
        EXPECT_EQ(value(sum_of("1", "-(-3)", times)), whole) << times;
        EXPECT_EQ(value(sum_of("-1", "- -3-6", times)), "-" + whole) << times;
    }
}

TEST_F(LongSum, overflows_where_a_partial_sum_does) {
    for (const int times : {2, 20, 200}) {
        EXPECT_EQ(error(sum_of("2147483647+1", "-1", times)), 8115) << times;
        EXPECT_EQ(error(sum_of("2147483647", "-1", times)), 0) << times;
        EXPECT_EQ(error(sum_of("99999999999999999999999999999999999999", "+1", times)), 8115);
    }
}

TEST_F(LongSum, of_anything_and_nothing_is_nothing) {
    EXPECT_EQ(value("SELECT ISNULL(1+NULL" + std::string("+1+1+1+1+1+1+1+1+1+1+1+1+1+1+1+1+1") +
                    ",7)"),
              "7");
}

TEST_F(LongSum, in_brackets_deeper_than_the_engine_reads_is_refused_by_its_number) {
    std::string deep = "SELECT 1";
    for (int i = 0; i < 60; ++i) deep += "+(2";
    deep += std::string(60, ')');
    EXPECT_EQ(error(deep), 191);
}

} // namespace tests
