// Procedures, triggers and cursors across statements, batches and each other.
#include <gtest/gtest.h>

#include "tests/engines/small_books.h"

namespace tests {

namespace {

std::unique_ptr<engines::Session> empty_books() {
    return open(":memory:");
}

} // namespace

TEST(Triggers, an_outer_trigger_keeps_its_rows_while_an_inner_one_has_its_own) {
    const auto session = empty_books();
    for (const char* batch :
         {"CREATE TABLE T (ID int, N int)", "CREATE TABLE U (ID int)", "CREATE TABLE LOG (C int)",
          "CREATE TRIGGER TT ON T AFTER INSERT, UPDATE AS BEGIN "
          "IF EXISTS (SELECT * FROM inserted WHERE N=0) "
          "INSERT INTO U SELECT ID FROM inserted WHERE N=0; "
          "INSERT INTO LOG SELECT COUNT(*) FROM inserted END",
          "CREATE TRIGGER TU ON U AFTER INSERT AS "
          "UPDATE T SET N=1 WHERE ID=1 AND ID IN (SELECT ID FROM inserted)",
          "INSERT INTO T VALUES (1,0),(2,0),(3,0)"}) {
        const engines::Outcome outcome = run(*session, batch);
        ASSERT_TRUE(outcome.ok()) << batch << ": " << outcome.error->text;
    }
    EXPECT_EQ(cell(*session, "SELECT MIN(C)*10+MAX(C) FROM LOG"), "13");
    EXPECT_EQ(cell(*session, "SELECT COUNT(*) FROM LOG"), "2");
}

TEST(Triggers, a_rollback_inside_undoes_everything_and_ends_the_batch) {
    const auto session = empty_books();
    run(*session, "CREATE TABLE T (ID int)");
    run(*session, "CREATE TRIGGER TT ON T AFTER DELETE AS ROLLBACK");
    run(*session, "INSERT INTO T VALUES (1)");
    const engines::Outcome outcome = run(
        *session, "BEGIN TRAN; INSERT INTO T VALUES (2); DELETE FROM T; INSERT INTO T VALUES (3)");
    ASSERT_FALSE(outcome.ok());
    EXPECT_EQ(outcome.error->number, 3609);
    EXPECT_EQ(session->transaction_depth(), 0);
    EXPECT_EQ(cell(*session, "SELECT COUNT(*) FROM T"), "1");
}

TEST(Triggers, that_call_each_other_for_ever_are_stopped) {
    const auto session = empty_books();
    run(*session, "CREATE TABLE A (ID int)");
    run(*session, "CREATE TABLE B (ID int)");
    run(*session, "CREATE TRIGGER TA ON A AFTER INSERT AS INSERT INTO B SELECT ID FROM inserted");
    run(*session, "CREATE TRIGGER TB ON B AFTER INSERT AS INSERT INTO A SELECT ID FROM inserted");
    const engines::Outcome outcome = run(*session, "INSERT INTO A VALUES (1)");
    ASSERT_FALSE(outcome.ok());
    EXPECT_EQ(outcome.error->number, 217);
    EXPECT_EQ(cell(*session, "SELECT COUNT(*) FROM A"), "0");
    EXPECT_EQ(cell(*session, "SELECT COUNT(*) FROM B"), "0");
}

TEST(Messages, each_has_its_own_text) {
    struct Heard : engines::ResultReceiver {
        void error(const engines::Error& error) override { texts += error.text + ";"; }
        void message(std::string_view text) override { texts += std::string(text) + ";"; }
        std::string texts;
    } heard;
    const auto session = empty_books();
    session->execute("RAISERROR('one',16,1); RAISERROR('%s of %d',16,1,'two',7); PRINT 'three'; "
                     "RAISERROR('four',10,1); THROW 50005,'five',1",
                     heard);
    EXPECT_EQ(heard.texts, "one;two of 7;three;four;five;");
}

TEST(Cursors, may_be_declared_in_one_batch_and_read_in_another) {
    const auto session = empty_books();
    run(*session, "CREATE TABLE T (ID int); INSERT INTO T VALUES (1),(2),(3)");
    EXPECT_TRUE(
        run(*session, "DECLARE c CURSOR FOR SELECT ID FROM T WHERE ID>=2 ORDER BY ID").ok());
    EXPECT_TRUE(run(*session, "OPEN c").ok());
    EXPECT_EQ(cell(*session, "DECLARE @i int; FETCH NEXT FROM c INTO @i; SELECT @i"), "2");
    EXPECT_EQ(cell(*session, "DECLARE @i int; FETCH NEXT FROM c INTO @i; SELECT @i"), "3");
    EXPECT_EQ(cell(*session, "DECLARE @i int; FETCH NEXT FROM c INTO @i; SELECT @@FETCH_STATUS"),
              "-1");
    EXPECT_TRUE(run(*session, "CLOSE c; DEALLOCATE c").ok());
    EXPECT_FALSE(run(*session, "OPEN c").ok());
}

TEST(Functions, that_call_themselves_have_their_own_variables) {
    const auto session = empty_books();
    ASSERT_TRUE(run(*session, "CREATE FUNCTION dbo.FACT(@n int) RETURNS bigint AS BEGIN "
                              "DECLARE @r bigint; SET @r=1; "
                              "IF @n>1 SET @r=@n*dbo.FACT(@n-1); RETURN @r END")
                    .ok());
    EXPECT_EQ(cell(*session, "SELECT dbo.FACT(15)"), "1307674368000");
    EXPECT_EQ(cell(*session, "SELECT dbo.FACT(40)"),
              "Maximum stored procedure, function, trigger, or view nesting level exceeded (limit "
              "32).");
}

TEST(TryCatch, an_error_under_xact_abort_dooms_the_transaction) {
    const auto session = empty_books();
    run(*session, "CREATE TABLE T (ID int NOT NULL PRIMARY KEY); INSERT INTO T VALUES (1)");
    const std::string batch = "SET XACT_ABORT ON; BEGIN TRAN; BEGIN TRY INSERT INTO T VALUES (2); "
                              "INSERT INTO T VALUES (1); END TRY BEGIN CATCH ";
    EXPECT_EQ(cell(*session, batch + "SELECT XACT_STATE(); ROLLBACK END CATCH"), "-1");
    EXPECT_EQ(run(*session, batch + "COMMIT END CATCH").error->number, 3930);
    EXPECT_EQ(session->transaction_depth(), 0);
    EXPECT_EQ(cell(*session, "SELECT COUNT(*) FROM T"), "1");
}

TEST(RepeatedUpdate, that_changes_nothing_is_left_out_only_while_nothing_changed) {
    const auto session = empty_books();
    run(*session, "CREATE TABLE T (ID int NOT NULL PRIMARY KEY, V int)");
    run(*session, "INSERT INTO T VALUES (1,5),(2,0)");
    EXPECT_TRUE(run_atomically(*session, "UPDATE T SET V=7 WHERE ID=1;UPDATE T SET V=7 WHERE ID=1;"
                                         "UPDATE T SET V=7 WHERE ID=1;DELETE FROM T WHERE ID=1;"
                                         "INSERT INTO T VALUES (1,0);UPDATE T SET V=7 WHERE ID=1")
                    .ok());
    EXPECT_EQ(cell(*session, "SELECT V FROM T WHERE ID=1"), "7");
}

} // namespace tests
