// Copies of books, and the way back.
#include "app/books/backup.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "app/books/open.h"
#include "app/refusal.h"
#include "automation/check/check.h"
#include "automation/check/log_seal.h"
#include "automation/sql/collected_result.h"
#include "tests/support/new_books.h"

namespace app {
namespace {

namespace fs = std::filesystem;

class Backup : public ::testing::Test {
protected:
    void write(const std::string& books, const std::string& summary) {
        automation::rows_of(*open_books(books), "INSERT INTO D6803 (GUID, ZY) VALUES ('" +
                                                    summary + "','" + summary + "')");
    }
    bool has(const std::string& books, const std::string& summary) {
        return !automation::rows_of(*open_books(books),
                                    "SELECT ZY FROM D6803 WHERE GUID = '" + summary + "'")
                    .empty();
    }

    tests::TemporaryFolder folder_;
    std::string books_ = tests::new_books(folder_, "a.zf");
    std::string copy_ = folder_.file("copy.zf");
    const Restoring by_{"anna", *host::DateTime::parse("2024-03-05 14:05:06")};
};

} // namespace

TEST_F(Backup, a_copy_holds_what_was_saved_while_others_have_the_books_open) {
    const auto other = open_books(books_);
    automation::rows_of(*other, "INSERT INTO D6803 (GUID, ZY) VALUES ('kept','kept')");
    backup_books(books_, copy_);
    EXPECT_TRUE(has(copy_, "kept"));
}

TEST_F(Backup, a_copy_is_made_while_somebody_is_in_the_middle_of_a_save) {
    const auto other = open_books(books_);
    ASSERT_TRUE(other->begin().ok());
    automation::rows_of(*other, "INSERT INTO D6803 (GUID, ZY) VALUES ('half','half')");
    backup_books(books_, copy_);
    EXPECT_FALSE(has(copy_, "half"));
    ASSERT_TRUE(other->commit().ok());
    EXPECT_TRUE(has(books_, "half"));
}

TEST_F(Backup, tells_how_far_it_is_and_its_end) {
    std::vector<std::pair<std::int64_t, std::int64_t>> told;
    backup_books(books_, copy_, [&](const std::string& what, std::int64_t done, std::int64_t all) {
        EXPECT_EQ(what.empty(), done == all && all == 1);
        told.emplace_back(done, all);
        return true;
    });
    ASSERT_GE(told.size(), 2u);
    EXPECT_EQ(told.back(), std::make_pair(std::int64_t{1}, std::int64_t{1}));
    EXPECT_LT(told.front().first, told.front().second) << "copied, not yet checked";
    EXPECT_TRUE(fs::exists(copy_));
}

TEST_F(Backup, stopped_it_leaves_no_file) {
    // Larger than one portion of the copy, so that it can be stopped within it.
    automation::rows_of(*open_books(books_),
                        "CREATE TABLE BIG (A varchar(8000)); INSERT INTO BIG SELECT "
                        "REPLICATE('x', 8000) FROM "
                        "(SELECT TOP 2000 A.KM_ID FROM D6801 A, D6801 B) T");
    const auto stop = [](const std::string&, std::int64_t, std::int64_t) { return false; };
    try {
        backup_books(books_, copy_, stop);
        FAIL() << "it was stopped";
    } catch (const Refusal& refusal) {
        EXPECT_STREQ(refusal.what(), "操作已取消,没有留下文件,帐套没有改变!");
    }
    EXPECT_EQ(folder_.files(), 1u);
    backup_books(books_, copy_);
    write(books_, "after");
    EXPECT_THROW(restore_books(copy_, books_, by_, stop), Refusal);
    EXPECT_TRUE(has(books_, "after"));
    EXPECT_EQ(folder_.files(), 2u);
}

TEST_F(Backup, restoring_brings_the_books_back_and_keeps_the_old_ones_aside) {
    write(books_, "before");
    backup_books(books_, copy_);
    write(books_, "after");
    const std::string aside = restore_books(copy_, books_, by_);
    EXPECT_TRUE(has(books_, "before"));
    EXPECT_FALSE(has(books_, "after"));
    EXPECT_EQ(aside, books_ + ".before-restore-20240305-140506");
    EXPECT_TRUE(has(aside, "after"));
}

TEST_F(Backup, the_restored_log_says_where_it_was_restored_from) {
    backup_books(books_, copy_);
    const std::string seal = automation::log_seal(*open_books(books_));
    write(books_, "after");
    const std::string aside = restore_books(copy_, books_, by_);
    const auto restored = open_books(books_);
    const auto last = automation::rows_of(
        *restored, "SELECT TOP 1 CONVERT(varchar(19),LOG_TIME,120),USER_ID,FUNCTION_CODE,DOC_KEY,"
                   "OPERATION,BATCH "
                   "FROM SYS_LOG A INNER JOIN SYS_LOG_TEXT B ON A.ID=B.ID ORDER BY A.ID DESC");
    const std::vector<std::string> told = {"2024-03-05 14:05:06", "anna", "restore", "copy.zf",
                                           "Restore", "恢复自 " + copy_};
    for (std::size_t i = 0; i < told.size(); ++i) EXPECT_EQ(last[0][i].value_or(""), told[i]);
    EXPECT_TRUE(automation::check_books(*restored).empty());
    EXPECT_EQ(automation::broken_seal(*restored, seal), "") << "the log goes on";
    const auto rows = "SELECT COUNT(*) FROM SYS_LOG WHERE OPERATION='Restore'";
    EXPECT_EQ(automation::rows_of(*open_books(copy_), rows)[0][0], "0") << "the backup stays";
    EXPECT_EQ(automation::rows_of(*open_books(aside), rows)[0][0], "0");
}

TEST_F(Backup, a_backup_of_a_time_without_such_a_log_is_restored_without_a_row) {
    automation::rows_of(*open_books(books_), "DROP TABLE SYS_LOG_HEAD; DROP TABLE SYS_LOG_TEXT");
    backup_books(books_, copy_);
    restore_books(copy_, books_, by_);
    EXPECT_TRUE(automation::rows_of(*open_books(books_),
                                    "SELECT ID FROM SYS_LOG WHERE OPERATION='Restore'")
                    .empty());
}

TEST_F(Backup, restoring_where_no_books_are_makes_them) {
    write(books_, "before");
    backup_books(books_, copy_);
    EXPECT_EQ(restore_books(copy_, folder_.file("new.zf"), by_), "");
    EXPECT_EQ(folder_.files(), 3u); // the books, the copy, the new books: nothing else is left
    EXPECT_TRUE(has(folder_.file("new.zf"), "before"));
}

TEST_F(Backup, damaged_books_are_replaced_too) {
    write(books_, "before");
    backup_books(books_, copy_);
    std::ofstream(books_, std::ios::binary | std::ios::trunc) << std::string(50'000, '\xA5');
    EXPECT_FALSE(restore_books(copy_, books_, by_).empty());
    EXPECT_TRUE(has(books_, "before"));
}

TEST_F(Backup, restoring_is_refused_while_somebody_works_in_the_books) {
    backup_books(books_, copy_);
    const auto other = open_books(books_);
    automation::rows_of(*other, "INSERT INTO D6803 (GUID, ZY) VALUES ('open','open')");
    EXPECT_THROW(restore_books(copy_, books_, by_), Refusal);
    EXPECT_TRUE(has(books_, "open"));
}

TEST_F(Backup, an_existing_file_is_never_replaced_by_a_copy) {
    std::ofstream(copy_) << "of somebody";
    EXPECT_THROW(backup_books(books_, copy_), Refusal);
    EXPECT_EQ(fs::file_size(copy_), 11u);
}

TEST_F(Backup, tells_whose_books_it_holds_and_how_far_they_are) {
    backup_books(books_, copy_);
    const std::string company = *automation::rows_of(
        *open_books(books_), "SELECT VALUE FROM SYS_SETTING WHERE NAME='company'")[0][0];
    EXPECT_EQ(contents_of_backup(copy_), company + ",还没有建帐");
    automation::rows_of(*open_books(copy_), "UPDATE D6600 SET PARAM='2024-03' WHERE ID=2");
    EXPECT_EQ(contents_of_backup(copy_), company + ",会计期间 2024-03");
    const std::string letter = folder_.file("letter.txt");
    std::ofstream(letter) << "Dear Sir";
    EXPECT_THROW(contents_of_backup(letter), Refusal);
    EXPECT_THROW(contents_of_backup(folder_.file("nothing.zf")), Refusal);
}

TEST(MomentInName, has_nothing_that_a_file_name_does_not_take) {
    EXPECT_EQ(moment_in_name(*host::DateTime::parse("2024-03-05 14:05:06")),
              "20240305-140506");
}

TEST_F(Backup, what_is_no_backup_is_refused_and_the_books_stay) {
    write(books_, "before");
    std::ofstream(copy_) << std::string(10'000, 'x');
    EXPECT_THROW(restore_books(copy_, books_, by_), Refusal);
    EXPECT_TRUE(has(books_, "before"));
    EXPECT_THROW(restore_books(books_, books_, by_), Refusal);
}

} // namespace app
