// Books of an earlier program: what they lack is created, all of it or nothing.
#include "app/books/upgrade.h"

#include <gtest/gtest.h>

#include "app/books/open.h"
#include "app/refusal.h"
#include "automation/check/check.h"
#include "automation/sql/collected_result.h"
#include "tests/support/new_books.h"

namespace app {
namespace {

class Upgrade : public ::testing::Test {
protected:
    // As a program that knew no roles left them.
    void forget_roles() {
        run("DROP TABLE SYS_ROLE; DROP TABLE SYS_ROLE_RIGHT; DROP TABLE SYS_USER_ROLE");
    }
    void run(const std::string& batch) { automation::rows_of(*session_, batch); }
    std::string value(const std::string& select) {
        return automation::rows_of(*session_, select)[0][0].value_or("<null>");
    }
    void upgrade() { create_what_is_missing(*session_, clock_, "admin"); }

    tests::TemporaryFolder folder_;
    SystemClock clock_{host::Date::of(2024, 3, 5)};
    std::unique_ptr<engines::Session> session_ = open_books(tests::new_books(folder_, "a.zf"));
};

} // namespace

TEST_F(Upgrade, role_tables_come_with_the_standard_roles_and_a_row_of_the_log) {
    const std::string rights = value("SELECT COUNT(*) FROM SYS_ROLE_RIGHT");
    forget_roles();
    upgrade();
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_ROLE"), "5");
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_ROLE_RIGHT"), rights);
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_USER_ROLE"), "0");
    EXPECT_EQ(value("SELECT TOP 1 OPERATION FROM SYS_LOG ORDER BY ID DESC"), "Upgrade");
    EXPECT_TRUE(automation::check_books(*session_).empty());
}

TEST_F(Upgrade, a_log_from_before_texts_were_kept_goes_on_with_them) {
    run("DROP TABLE SYS_LOG_HEAD; DROP TABLE SYS_LOG_TEXT");
    EXPECT_TRUE(automation::check_books(*session_).empty()) << "an old log is no damage";
    upgrade();
    EXPECT_EQ(value("SELECT CAST(LAST_ID AS varchar) + '/' + CAST(FIRST_TEXT AS varchar) "
                    "FROM SYS_LOG_HEAD"),
              "2/2");
    EXPECT_EQ(value("SELECT BATCH FROM SYS_LOG_TEXT"), "SYS_LOG_HEAD,SYS_LOG_TEXT");
    EXPECT_TRUE(automation::check_books(*session_).empty());
}

TEST_F(Upgrade, books_that_lack_nothing_are_not_written) {
    const std::string rows = value("SELECT COUNT(*) FROM SYS_LOG");
    upgrade();
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_LOG"), rows);
}

TEST_F(Upgrade, whatever_view_or_routine_is_missing_comes_back) {
    run("DROP VIEW V6801_PATH; DROP PROCEDURE SYS_685");
    upgrade();
    EXPECT_NE(value("SELECT OBJECT_ID('V6801_PATH')"), "<null>");
    EXPECT_NE(value("SELECT OBJECT_ID('SYS_685')"), "<null>");
    upgrade();
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_LOG WHERE OPERATION = 'Upgrade'"), "1");
}

TEST_F(Upgrade, an_upgrade_that_fails_leaves_the_books_as_they_were) {
    forget_roles();
    run("CREATE TABLE SYS_ROLE (WRONG int NOT NULL)");
    EXPECT_THROW(upgrade(), Refusal);
    EXPECT_EQ(value("SELECT OBJECT_ID('SYS_USER_ROLE')"), "<null>");
    EXPECT_EQ(session_->transaction_depth(), 0);
}

} // namespace app
