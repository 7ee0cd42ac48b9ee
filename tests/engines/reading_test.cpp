// Batches that may only read: what they refuse, what they see, whom they leave alone.
#include <gtest/gtest.h>

#include <chrono>
#include <functional>

#include "tests/engines/small_books.h"

namespace tests {

namespace {

engines::Outcome read(engines::Session& session, const std::string& batch) {
    engines::ResultReceiver unheard;
    return session.read(batch, unheard);
}

// Does something while the batch that it listens to stands on a row, and keeps the last cell.
struct Meanwhile : engines::ResultReceiver {
    explicit Meanwhile(std::function<void()> action) : action(std::move(action)) {}
    bool row(std::span<const engines::Value> cells) override {
        if (action) action();
        action = nullptr;
        last = engines::text_of(cells[0]);
        return true;
    }
    std::function<void()> action;
    std::string last;
};

std::unique_ptr<engines::Session> open_impatient(const std::string& path) {
    engines::OpenOptions options;
    options.busy_timeout = std::chrono::milliseconds{0};
    return open(path, options);
}

class Reading : public ::testing::Test {
protected:
    TemporaryFolder folder_;
    std::string path_ = folder_.file("a.zf");
    std::unique_ptr<engines::Session> session_ = create(path_);
};

} // namespace

TEST_F(Reading, every_kind_of_change_is_refused_and_nothing_is_done) {
    ASSERT_TRUE(run(*session_, "CREATE PROCEDURE P AS DELETE FROM T").ok());
    ASSERT_TRUE(run(*session_, "CREATE VIEW W AS SELECT ID FROM T").ok());
    for (const char* batch :
         {"INSERT INTO T VALUES (4,'a')", "UPDATE T SET V='a'", "DELETE FROM T",
          "TRUNCATE TABLE T", "SELECT 1; DELETE FROM T", "EXEC P", "EXEC('DELETE FROM T')",
          "EXEC sp_executesql N'DELETE FROM T'", "SELECT ID INTO N FROM T",
          "CREATE TABLE N (A int)", "DROP TABLE T", "DROP VIEW W", "ALTER TABLE T ADD X int",
          "CREATE INDEX I ON T (V)"}) {
        const engines::Outcome outcome = read(*session_, batch);
        ASSERT_FALSE(outcome.ok()) << batch;
        EXPECT_EQ(outcome.error->number, 3906) << batch;
        EXPECT_EQ(outcome.error->category, engines::ErrorCategory::read_only) << batch;
        EXPECT_EQ(session_->transaction_depth(), 0) << batch;
    }
    EXPECT_EQ(cell(*session_, "SELECT COUNT(*) FROM T WHERE V='row'"), "3");
    EXPECT_EQ(cell(*session_, "SELECT COUNT(*) FROM W"), "3");
    EXPECT_TRUE(run(*session_, "CREATE TABLE N (A int)").ok()) << "it is not there yet";
}

// Else a text that a person typed could leave later work in a transaction that nobody ends.
TEST_F(Reading, transactions_are_neither_begun_nor_ended) {
    for (const char* batch : {"BEGIN TRAN", "COMMIT", "ROLLBACK", "SAVE TRAN A",
                              "SELECT 1; COMMIT; DELETE FROM T"}) {
        const engines::Outcome outcome = read(*session_, batch);
        ASSERT_FALSE(outcome.ok()) << batch;
        EXPECT_EQ(outcome.error->number, 3906) << batch;
        EXPECT_EQ(session_->transaction_depth(), 0) << batch;
    }
    EXPECT_EQ(cell(*session_, "SELECT COUNT(*) FROM T"), "3");
}

TEST_F(Reading, an_error_caught_by_the_batch_itself_opens_no_door) {
    EXPECT_FALSE(read(*session_, "BEGIN TRY DELETE FROM T END TRY BEGIN CATCH SELECT 1 END CATCH")
                     .ok());
    EXPECT_EQ(session_->transaction_depth(), 0);
    EXPECT_EQ(cell(*session_, "SELECT COUNT(*) FROM T"), "3");
}

TEST_F(Reading, temporary_tables_may_be_written) {
    Meanwhile result(nullptr);
    EXPECT_TRUE(session_
                    ->read("CREATE TABLE #a (A int); INSERT INTO #a SELECT ID FROM T; "
                           "DECLARE @b TABLE (B int); INSERT INTO @b SELECT A FROM #a WHERE A>1; "
                           "DROP TABLE #a; SELECT SUM(B) FROM @b",
                           result)
                    .ok());
    EXPECT_EQ(result.last, "5");
}

TEST_F(Reading, options_that_the_batch_sets_end_with_it) {
    ASSERT_TRUE(run(*session_, "CREATE TABLE I (ID int IDENTITY(1,1), A int)").ok());
    EXPECT_TRUE(read(*session_, "SET IDENTITY_INSERT I ON; SET XACT_ABORT ON; SELECT 1").ok());
    EXPECT_FALSE(run(*session_, "INSERT INTO I (ID, A) VALUES (7, 1)").ok());
}

TEST_F(Reading, all_statements_see_the_same_instant) {
    const auto other = open(path_);
    Meanwhile result([&] { ASSERT_TRUE(run(*other, "DELETE FROM T WHERE ID=1").ok()); });
    EXPECT_TRUE(session_->read("SELECT 1; SELECT COUNT(*) FROM T", result).ok());
    EXPECT_EQ(result.last, "3");
    EXPECT_EQ(cell(*session_, "SELECT COUNT(*) FROM T"), "2");
}

TEST_F(Reading, leaves_the_right_to_write_to_others_also_while_it_fills_temporary_tables) {
    const auto other = open_impatient(path_);
    Meanwhile result([&] { ASSERT_TRUE(run(*other, "INSERT INTO T VALUES (4,'a')").ok()); });
    EXPECT_TRUE(session_
                    ->read("DECLARE @a TABLE (A int); INSERT INTO @a SELECT ID FROM T; "
                           "SELECT A FROM @a; INSERT INTO @a VALUES (9)",
                           result)
                    .ok());
    EXPECT_EQ(cell(*session_, "SELECT COUNT(*) FROM T"), "4");
}

TEST_F(Reading, inside_a_transaction_of_the_caller_sees_its_work_and_leaves_it_open) {
    ASSERT_TRUE(session_->begin().ok());
    ASSERT_TRUE(run(*session_, "DELETE FROM T WHERE ID=1").ok());
    Meanwhile result(nullptr);
    EXPECT_TRUE(session_->read("SELECT COUNT(*) FROM T", result).ok());
    EXPECT_EQ(result.last, "2");
    EXPECT_FALSE(read(*session_, "DELETE FROM T").ok());
    EXPECT_EQ(session_->transaction_depth(), 1);
    ASSERT_TRUE(session_->commit().ok());
    EXPECT_EQ(cell(*session_, "SELECT COUNT(*) FROM T"), "2");
}

TEST_F(Reading, a_transaction_of_many_batches_sees_one_instant_and_writes_nothing) {
    const auto other = open_impatient(path_);
    ASSERT_TRUE(session_->begin_reading().ok());
    EXPECT_TRUE(run(*other, "DELETE FROM T WHERE ID=1").ok());
    EXPECT_EQ(cell(*session_, "SELECT COUNT(*) FROM T"), "3");
    EXPECT_FALSE(run(*session_, "DELETE FROM T").ok());
    EXPECT_TRUE(read(*session_, "SELECT 1").ok());
    EXPECT_TRUE(run(*other, "DELETE FROM T WHERE ID=2").ok());
    EXPECT_EQ(cell(*session_, "SELECT COUNT(*) FROM T"), "3");
    ASSERT_TRUE(session_->commit().ok());
    EXPECT_EQ(cell(*session_, "SELECT COUNT(*) FROM T"), "1");
    EXPECT_TRUE(run(*session_, "DELETE FROM T").ok());
}

// ---- definitions that another session changes ----

TEST(ChangedDefinitions, are_known_to_a_batch_that_joins_a_transaction_begun_before) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.zf");
    const auto first = create(path);
    const auto second = open(path);
    ASSERT_TRUE(run(*first, "CREATE TABLE N (A decimal(18,2))").ok());
    ASSERT_EQ(cell(*second, "SELECT COUNT(*) FROM N"), "0");
    ASSERT_TRUE(run(*first, "DROP TABLE N").ok());
    ASSERT_TRUE(run(*first, "CREATE TABLE N (A decimal(18,4))").ok());
    ASSERT_TRUE(second->begin().ok());
    EXPECT_TRUE(run_atomically(*second, "INSERT INTO N VALUES (1.5)").ok());
    ASSERT_TRUE(second->commit().ok());
    EXPECT_EQ(cell(*first, "SELECT A FROM N"), "1.5000");
}

TEST(ChangedDefinitions, are_known_to_a_batch_that_is_all_or_nothing) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.zf");
    const auto first = create(path);
    const auto second = open(path);
    ASSERT_TRUE(run(*first, "CREATE TABLE N (A decimal(18,2))").ok());
    ASSERT_TRUE(run_atomically(*second, "INSERT INTO N VALUES (1.5)").ok());
    ASSERT_TRUE(run(*first, "CREATE TRIGGER R ON N AFTER INSERT AS DELETE FROM T").ok());
    EXPECT_TRUE(run_atomically(*second, "INSERT INTO N VALUES (2.5)").ok());
    EXPECT_EQ(cell(*first, "SELECT COUNT(*) FROM T"), "0") << "the trigger fired";
}

TEST(ChangedDefinitions, in_the_middle_of_a_batch_are_met_by_a_refusal) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.zf");
    const auto first = create(path);
    const auto second = open(path);
    ASSERT_TRUE(run(*first, "CREATE TABLE N (A decimal(18,2))").ok());
    Meanwhile receiver([&] {
        ASSERT_TRUE(run(*first, "DROP TABLE N").ok());
        ASSERT_TRUE(run(*first, "CREATE TABLE N (A decimal(18,4))").ok());
    });
    const std::string batch = "SELECT 1; INSERT INTO N VALUES (1.5)";
    const engines::Outcome outcome = second->execute(batch, receiver);
    ASSERT_FALSE(outcome.ok());
    EXPECT_EQ(outcome.error->number, 2801);
    EXPECT_EQ(second->transaction_depth(), 0);
    EXPECT_TRUE(run(*second, batch).ok()) << "run again it fits";
    EXPECT_EQ(cell(*first, "SELECT A FROM N"), "1.5000");
}

} // namespace tests
