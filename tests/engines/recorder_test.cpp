// Who changes the books is written down in the transaction of the change itself.
#include <gtest/gtest.h>

#include <vector>

#include "tests/engines/small_books.h"

namespace tests {

namespace {

class Recorded : public ::testing::Test {
protected:
    Recorded() {
        EXPECT_TRUE(run(*session_, "CREATE TABLE LOG (N int IDENTITY(100,1), WHAT nvarchar(max))")
                        .ok());
        record();
    }
    void record() {
        session_->set_recorder([this](std::string_view batches) {
            told_.emplace_back(batches);
            engines::ResultReceiver nobody;
            const engines::Outcome outcome = session_->execute(
                "INSERT INTO LOG (WHAT) SELECT 'x'; INSERT INTO LOG (WHAT) SELECT 'y'", nobody);
            if (!outcome.ok()) throw engines::Failure(*outcome.error);
        });
    }
    std::string logged() { return cell(*session_, "SELECT COUNT(*) FROM LOG"); }

    using Told = std::vector<std::string>;
    TemporaryFolder folder_;
    std::unique_ptr<engines::Session> session_ = create(folder_.file("a.zf"));
    Told told_;
};

} // namespace

TEST_F(Recorded, a_batch_that_changes_the_books_is_told_once_whatever_it_commits) {
    const std::string batch = "UPDATE T SET V='a' WHERE ID=1; UPDATE T SET V='b' WHERE ID=2";
    EXPECT_TRUE(run(*session_, batch).ok());
    EXPECT_EQ(told_, Told{batch});
    EXPECT_EQ(logged(), "2");
    EXPECT_TRUE(run(*session_, "CREATE TABLE N (A int)").ok());
    EXPECT_EQ(told_.size(), 2u) << "definitions are changes too";
}

TEST_F(Recorded, reading_and_changing_nothing_are_not_told) {
    for (const char* batch :
         {"SELECT * FROM T", "DELETE FROM T WHERE ID=99", "CREATE TABLE #t (A int)",
          "DECLARE @t TABLE (A int); INSERT INTO @t VALUES (1)", "SET XACT_ABORT ON",
          "BEGIN TRAN; SELECT 1; COMMIT", "BEGIN TRAN; DELETE FROM T; ROLLBACK"})
        EXPECT_TRUE(run(*session_, batch).ok()) << batch;
    EXPECT_EQ(told_, Told{});
    EXPECT_EQ(cell(*session_, "SELECT COUNT(*) FROM T"), "3");
}

TEST_F(Recorded, the_batches_of_a_long_transaction_are_told_together_at_its_end) {
    EXPECT_TRUE(run(*session_, "BEGIN TRAN").ok());
    EXPECT_TRUE(run(*session_, "DELETE FROM T WHERE ID=1").ok());
    EXPECT_EQ(told_, Told{});
    EXPECT_TRUE(run(*session_, "COMMIT").ok());
    EXPECT_EQ(told_, Told{"BEGIN TRAN\nGO\nDELETE FROM T WHERE ID=1\nGO\nCOMMIT"});
    EXPECT_TRUE(run(*session_, "DELETE FROM T WHERE ID=2").ok());
    EXPECT_EQ(told_.back(), "DELETE FROM T WHERE ID=2");
}

TEST_F(Recorded, the_batch_sees_nothing_of_it) {
    EXPECT_TRUE(run(*session_, "CREATE TABLE I (ID int IDENTITY(7,1), A int)").ok());
    EXPECT_EQ(cell(*session_, "UPDATE T SET V='a'; SELECT @@ROWCOUNT"), "3");
    EXPECT_EQ(cell(*session_, "INSERT INTO I (A) VALUES (1); SELECT SCOPE_IDENTITY()"), "7");
    EXPECT_EQ(cell(*session_, "SELECT @@IDENTITY"), "7");
    EXPECT_EQ(run(*session_, "UPDATE T SET V='b'").affected, 3);
    EXPECT_EQ(run_atomically(*session_, "UPDATE T SET V='c'").affected, 3);
}

TEST_F(Recorded, what_cannot_be_written_down_is_not_done) {
    session_->set_recorder(nullptr);
    EXPECT_TRUE(run(*session_, "ALTER TABLE LOG ADD CHECK (WHAT<>'y')").ok());
    record();
    for (const char* batch : {"DELETE FROM T", "BEGIN TRAN; DELETE FROM T; COMMIT",
                              "DROP TABLE LOG"}) {
        EXPECT_FALSE(run(*session_, batch).ok()) << batch;
        EXPECT_EQ(session_->transaction_depth(), 0) << batch;
    }
    EXPECT_EQ(cell(*session_, "SELECT COUNT(*) FROM T"), "3");
    EXPECT_EQ(logged(), "0");
}

TEST_F(Recorded, an_error_after_a_change_that_stands_leaves_its_record) {
    EXPECT_FALSE(run(*session_, "DELETE FROM T WHERE ID=1; INSERT INTO T VALUES (2,'a')").ok());
    EXPECT_EQ(told_.size(), 1u);
    EXPECT_EQ(logged(), "2");
    EXPECT_FALSE(
        run_atomically(*session_, "DELETE FROM T WHERE ID=2; INSERT INTO T VALUES (3,'a')").ok());
    EXPECT_EQ(logged(), "2");
}

} // namespace tests
