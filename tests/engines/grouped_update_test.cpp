// UPDATE from sums by account: which rows make one group, and what their sum is.
#include <gtest/gtest.h>

#include "tests/engines/small_books.h"

namespace tests {

namespace {

// Accounts with a total, and lines that name them in several spellings.
class GroupedUpdate : public testing::Test {
protected:
    GroupedUpdate() : session_(create(folder_.file("a.zf"))) {
        EXPECT_TRUE(run(*session_, "CREATE TABLE ACCOUNT (CODE nvarchar(20) NULL, "
                                   "TOTAL decimal(18,2) NULL, PIECES int NULL);"
                                   "CREATE TABLE LINE (CODE nvarchar(20) NULL, "
                                   "AMOUNT decimal(18,2) NULL, PIECES int NULL)")
                        .ok());
    }

    engines::Outcome sum_up() {
        return run(*session_, "UPDATE ACCOUNT SET TOTAL=T.A,PIECES=T.P FROM (SELECT CODE,"
                              "SUM(AMOUNT) AS A,SUM(PIECES) AS P FROM LINE GROUP BY CODE) T "
                              "WHERE ACCOUNT.CODE=T.CODE");
    }
    std::string total(const std::string& code) {
        return cell(*session_, "SELECT TOTAL FROM ACCOUNT WHERE CODE='" + code + "'");
    }

    const TemporaryFolder folder_;
    const std::unique_ptr<engines::Session> session_;
};

TEST_F(GroupedUpdate, texts_that_differ_in_case_width_or_trailing_blanks_are_one_group) {
    run(*session_, "INSERT INTO ACCOUNT (CODE) VALUES ('ab1'),('ab2');"
                   "INSERT INTO LINE (CODE,AMOUNT) VALUES ('ab1',1.10),('AB1',20.00),"
                   "('ab1  ',300.00),(N'ａｂ１',4000.00),('ab2',0.01)");
    EXPECT_TRUE(sum_up().ok());
    EXPECT_EQ(total("ab1"), "4321.10");
    EXPECT_EQ(total("ab2"), "0.01");
}

TEST_F(GroupedUpdate, null_amounts_do_not_count_and_a_sum_of_none_is_null) {
    run(*session_, "INSERT INTO ACCOUNT (CODE,TOTAL) VALUES ('a',9),('b',9),('c',9);"
                   "INSERT INTO LINE (CODE,AMOUNT) VALUES ('a',NULL),('a',2),('b',NULL),(NULL,5)");
    EXPECT_TRUE(sum_up().ok());
    EXPECT_EQ(total("a"), "2.00");
    EXPECT_EQ(total("b"), "NULL");
    EXPECT_EQ(total("c"), "9.00") << "no line names it";
}

TEST_F(GroupedUpdate, a_row_that_would_not_change_still_counts_as_updated) {
    run(*session_, "INSERT INTO ACCOUNT (CODE,TOTAL) VALUES ('a',2),('b',7);"
                   "INSERT INTO LINE (CODE,AMOUNT) VALUES ('a',2),('b',3)");
    EXPECT_EQ(cell(*session_, "UPDATE ACCOUNT SET TOTAL=T.A FROM (SELECT CODE,SUM(AMOUNT) AS A "
                              "FROM LINE GROUP BY CODE) T WHERE ACCOUNT.CODE=T.CODE;"
                              "SELECT @@ROWCOUNT"),
              "2");
}

TEST_F(GroupedUpdate, a_sum_beyond_its_type_is_an_overflow_and_changes_nothing) {
    run(*session_, "INSERT INTO ACCOUNT (CODE,TOTAL,PIECES) VALUES ('a',1,1);"
                   "INSERT INTO LINE (CODE,AMOUNT,PIECES) VALUES ('a',1,2147483647),('a',1,1)");
    const engines::Outcome outcome = sum_up();
    ASSERT_FALSE(outcome.ok());
    EXPECT_EQ(outcome.error->number, 8115);
    EXPECT_EQ(total("a"), "1.00");
}

TEST_F(GroupedUpdate, a_sum_beyond_64_bits_is_an_overflow) {
    run(*session_, "INSERT INTO ACCOUNT (CODE) VALUES ('a')");
    std::string lines;
    for (int i = 0; i < 12; ++i)
        lines += "INSERT INTO LINE (CODE,AMOUNT) VALUES ('a',9999999999999999.99);";
    run(*session_, lines);
    const engines::Outcome outcome = sum_up();
    ASSERT_FALSE(outcome.ok());
    EXPECT_EQ(outcome.error->number, 8115);
}

} // namespace

} // namespace tests
