// Batches that are all or nothing, transactions of the caller, cancelling, clock, backup.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <thread>
#include <vector>

#include "engines/calendar.h"
#include "tests/engines/small_books.h"

namespace tests {

namespace {

std::string rows(engines::Session& session) {
    return cell(session, "SELECT COUNT(*) FROM T");
}

} // namespace

TEST(AtomicBatch, the_first_error_leaves_nothing_of_the_batch) {
    const TemporaryFolder folder;
    const auto session = create(folder.file("a.zf"));
    const engines::Outcome outcome =
        run_atomically(*session, "INSERT INTO T VALUES (4,'a'); INSERT INTO T VALUES (1,'b')");
    ASSERT_FALSE(outcome.ok());
    EXPECT_EQ(outcome.error->number, 2627);
    EXPECT_EQ(outcome.error->line, 1);
    EXPECT_EQ(outcome.error->column, 31);
    EXPECT_EQ(rows(*session), "3");
    EXPECT_EQ(session->transaction_depth(), 0);
    EXPECT_TRUE(run_atomically(*session, "INSERT INTO T VALUES (4,'a')").ok());
    EXPECT_EQ(rows(*session), "4");
}

TEST(AtomicBatch, inside_a_transaction_an_error_undoes_the_batch_alone) {
    const TemporaryFolder folder;
    const auto session = create(folder.file("a.zf"));
    ASSERT_TRUE(session->begin().ok());
    EXPECT_TRUE(run_atomically(*session, "INSERT INTO T VALUES (4,'a')").ok());
    EXPECT_FALSE(run_atomically(*session, "INSERT INTO T VALUES (5,'a'); SELECT 1/0").ok());
    EXPECT_EQ(session->transaction_depth(), 1);
    ASSERT_TRUE(session->commit().ok());
    EXPECT_EQ(rows(*session), "4");
}

TEST(AtomicBatch, one_after_another_in_a_transaction_each_is_undone_for_itself) {
    const TemporaryFolder folder;
    const auto session = create(folder.file("a.zf"));
    ASSERT_TRUE(session->begin().ok());
    for (int i = 10; i < 40; ++i) {
        const std::string id = std::to_string(i);
        const std::string insert = "SAVE TRAN a; INSERT INTO T VALUES (" + id + ",'a'); SAVE TRAN "
                                   "b; UPDATE T SET V='b' WHERE ID=" + id + "; ROLLBACK TRAN b";
        EXPECT_EQ(run_atomically(*session, insert + (i % 3 == 0 ? "; SELECT 1/0" : "")).ok(),
                  i % 3 != 0);
    }
    EXPECT_TRUE(run(*session, "BEGIN TRY INSERT INTO T VALUES (50,'c'); INSERT INTO T VALUES "
                              "(50,'d') END TRY BEGIN CATCH UPDATE T SET V='e' WHERE ID=50 END "
                              "CATCH").ok());
    ASSERT_TRUE(session->commit().ok());
    EXPECT_EQ(cell(*session, "SELECT COUNT(*) FROM T WHERE ID BETWEEN 10 AND 39 AND V='a'"), "20");
    EXPECT_EQ(cell(*session, "SELECT COUNT(*) FROM T WHERE ID >= 10"), "21");
    EXPECT_EQ(cell(*session, "SELECT V FROM T WHERE ID=50"), "e");
}

TEST(AtomicBatch, a_raised_message_counts_as_an_error) {
    const TemporaryFolder folder;
    const auto session = create(folder.file("a.zf"));
    EXPECT_FALSE(run_atomically(*session, "DELETE FROM T; RAISERROR('no',16,1)").ok());
    EXPECT_EQ(rows(*session), "3");
}

TEST(CallersTransaction, spans_batches_and_can_be_undone) {
    const TemporaryFolder folder;
    const auto session = create(folder.file("a.zf"));
    ASSERT_TRUE(session->begin().ok());
    EXPECT_TRUE(run(*session, "DELETE FROM T WHERE ID=1").ok());
    EXPECT_TRUE(run(*session, "DELETE FROM T WHERE ID=2").ok());
    session->rollback();
    EXPECT_EQ(rows(*session), "3");
    EXPECT_FALSE(session->commit().ok());
}

TEST(Outcomes, count_the_rows_written) {
    const TemporaryFolder folder;
    const auto session = create(folder.file("a.zf"));
    EXPECT_EQ(run(*session, "UPDATE T SET V='x'; DELETE FROM T WHERE ID=1").affected, 4);
}

TEST(Interrupt, ends_the_running_statement_and_the_session_goes_on) {
    const TemporaryFolder folder;
    const auto session = create(folder.file("a.zf"), 60);
    std::thread other([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        session->interrupt();
    });
    const engines::Outcome outcome =
        run(*session, "SELECT COUNT(*) FROM T A, T B, T C, T D, T E, T F");
    other.join();
    ASSERT_FALSE(outcome.ok());
    EXPECT_EQ(outcome.error->category, engines::ErrorCategory::interrupted);
    EXPECT_EQ(rows(*session), "60");
}

TEST(Progress, tells_statements_done_and_in_all_and_never_goes_back) {
    const TemporaryFolder folder;
    const auto session = create(folder.file("a.zf"), 40);
    std::vector<std::int64_t> told;
    session->set_progress(
        [&](std::int64_t done, std::int64_t all) {
            EXPECT_EQ(all, 3);
            told.push_back(done);
            return true;
        },
        std::chrono::milliseconds{0});
    const std::string slow = "UPDATE T SET V=(SELECT COUNT(*) FROM T A, T B, T C WHERE A.ID>T.ID)+";
    ASSERT_TRUE(run_atomically(*session, slow + "1;" + slow + "2;" + slow + "3;").ok());
    ASSERT_GT(told.size(), 3u);
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_EQ(told.front(), 0);
    EXPECT_EQ(told.back(), 2); // the third was still running
    const std::size_t before = told.size();
    session->set_progress({}, std::chrono::milliseconds{0});
    ASSERT_TRUE(run_atomically(*session, slow + "4").ok());
    EXPECT_EQ(told.size(), before) << "nobody listens any more";
}

TEST(Progress, a_listener_that_says_stop_leaves_nothing_of_the_batch) {
    const TemporaryFolder folder;
    const auto session = create(folder.file("a.zf"), 40);
    session->set_progress([](std::int64_t done, std::int64_t) { return done < 1; },
                          std::chrono::milliseconds{0});
    const engines::Outcome outcome = run_atomically(
        *session, "DELETE FROM T WHERE ID<=20;"
                  "UPDATE T SET V=(SELECT COUNT(*) FROM T A, T B, T C, T D, T E);");
    ASSERT_FALSE(outcome.ok());
    EXPECT_EQ(outcome.error->category, engines::ErrorCategory::interrupted);
    EXPECT_EQ(session->transaction_depth(), 0);
    session->set_progress({}, std::chrono::milliseconds{0});
    EXPECT_EQ(rows(*session), "40");
    EXPECT_TRUE(run(*session, "DELETE FROM T WHERE ID=1").ok()) << "the session works on";
}

TEST(Progress, short_work_is_not_told) {
    const TemporaryFolder folder;
    const auto session = create(folder.file("a.zf"), 40);
    int calls = 0;
    session->set_progress(
        [&](std::int64_t, std::int64_t) {
            ++calls;
            return true;
        },
        std::chrono::hours{1});
    ASSERT_TRUE(run_atomically(*session, "UPDATE T SET V='x'").ok());
    EXPECT_EQ(calls, 0);
}

TEST(Clock, a_fixed_day_is_the_date_of_getdate) {
    const TemporaryFolder folder;
    const auto session = create(folder.file("a.zf"));
    session->set_clock(engines::days_since_1900(2024, 2, 29));
    EXPECT_EQ(cell(*session, "SELECT CONVERT(varchar(10),GETDATE(),120)"), "2024-02-29");
}

TEST(Backup, is_the_state_at_one_instant_while_others_write) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.zf");
    const auto session = create(path, 500);
    const auto writer = open(path);
    int calls = 0;
    session->backup_to(folder.file("b.zf"), [&](std::int64_t, std::int64_t all) {
        ++calls;
        EXPECT_GT(all, 0);
        EXPECT_TRUE(run(*writer, "DELETE FROM T WHERE ID<=100").ok());
        return true;
    });
    EXPECT_GT(calls, 0);
    const auto copy = open(folder.file("b.zf"));
    EXPECT_EQ(rows(*copy), "500");
    EXPECT_TRUE(copy->check_integrity().empty());
    EXPECT_EQ(rows(*session), "400");
}

TEST(Backup, never_overwrites_and_leaves_nothing_when_cancelled) {
    const TemporaryFolder folder;
    const auto session = create(folder.file("a.zf"), 500);
    EXPECT_THROW(session->backup_to(folder.file("a.zf"), {}), engines::Failure);
    EXPECT_EQ(rows(*session), "500");
    const std::size_t files = folder.files();
    // Cancelled before the last portion; small books are one portion, so that the answer comes
    // too late for them and the copy is whole.
    session->backup_to(folder.file("c.zf"), [](std::int64_t, std::int64_t) { return false; });
    EXPECT_EQ(folder.files(), files + 1);
}

TEST(Catalogue, definitions_of_one_session_are_seen_by_another) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.zf");
    const auto first = create(path);
    const auto second = open(path);
    EXPECT_TRUE(run(*first, "CREATE TABLE N (A decimal(18,2))").ok());
    EXPECT_TRUE(run(*first, "CREATE VIEW W AS SELECT A FROM N").ok());
    EXPECT_TRUE(run(*second, "INSERT INTO N VALUES (1.5)").ok());
    EXPECT_EQ(cell(*second, "SELECT A FROM W"), "1.50");
}

TEST(Catalogue, comes_back_with_the_books) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.zf");
    auto session = create(path);
    EXPECT_TRUE(run(*session, "CREATE TABLE I (ID int IDENTITY(5,5), A money DEFAULT 1)").ok());
    EXPECT_TRUE(run(*session, "INSERT INTO I (A) VALUES (2)").ok());
    EXPECT_TRUE(run(*session, "CREATE FUNCTION dbo.TWICE(@a int) RETURNS int AS BEGIN RETURN "
                              "@a*2 END")
                    .ok());
    session.reset();
    session = open(path);
    EXPECT_TRUE(run(*session, "DELETE FROM I; INSERT INTO I DEFAULT VALUES").ok());
    EXPECT_EQ(cell(*session, "SELECT dbo.TWICE(ID) FROM I"), "20");
    EXPECT_EQ(cell(*session, "SELECT A FROM I"), "1.0000");
}

TEST(BeforeCommit, the_procedure_runs_when_something_is_pending) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.zf");
    create(path).reset();
    engines::OpenOptions options;
    options.before_commit = {"SETTLE", "PENDING"};
    const auto session = open(path, options);
    EXPECT_TRUE(run(*session, "CREATE TABLE PENDING (ID int)").ok());
    EXPECT_TRUE(run(*session, "CREATE PROCEDURE SETTLE AS BEGIN DELETE FROM T WHERE ID IN (SELECT "
                              "ID FROM PENDING); DELETE FROM PENDING END")
                    .ok());
    EXPECT_TRUE(run(*session, "INSERT INTO PENDING VALUES (2)").ok());
    EXPECT_EQ(rows(*session), "2");
    EXPECT_EQ(cell(*session, "SELECT COUNT(*) FROM PENDING"), "0");
    ASSERT_TRUE(session->begin().ok());
    EXPECT_TRUE(run(*session, "INSERT INTO PENDING VALUES (3)").ok());
    EXPECT_EQ(rows(*session), "2");
    ASSERT_TRUE(session->commit().ok());
    EXPECT_EQ(rows(*session), "1");
}

} // namespace tests
