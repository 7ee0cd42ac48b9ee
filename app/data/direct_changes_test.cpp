// Changes past the forms in the operation log.
#include "app/data/direct_changes.h"

#include <gtest/gtest.h>

#include "app/books/open.h"
#include "app/settings/surroundings.h"
#include "automation/check/check.h"
#include "automation/sql/collected_result.h"
#include "tests/support/new_books.h"

namespace app {
namespace {

class DirectChanges : public ::testing::Test {
protected:
    DirectChanges() { log_direct_changes(*session_, clock_, "(anna)"); }
    engines::Outcome run(const std::string& batch) {
        return automation::collect(*session_, batch).outcome;
    }
    std::string value(const std::string& select) {
        return automation::rows_of(*session_, select)[0][0].value_or("<null>");
    }

    tests::TemporaryFolder folder_;
    SystemClock clock_{host::Date::of(2024, 3, 5)};
    std::unique_ptr<engines::Session> session_ = open_books(tests::new_books(folder_, "a.zf"));
};

} // namespace

TEST_F(DirectChanges, stand_in_the_chain_with_who_and_what) {
    const std::string before = value("SELECT COUNT(*) FROM SYS_LOG");
    EXPECT_EQ(run("UPDATE D6803 SET ZY='摘要' WHERE 1=0").affected, 0);
    ASSERT_TRUE(run("UPDATE D6801 SET PYM='X' WHERE KM_ID='1001'").ok());
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_LOG"), std::to_string(std::stoi(before) + 1));
    EXPECT_EQ(value("SELECT TOP 1 USER_ID+FUNCTION_CODE+OPERATION FROM SYS_LOG ORDER BY ID DESC"),
              "(anna)sqlSql");
    EXPECT_EQ(value("SELECT TOP 1 BATCH FROM SYS_LOG_TEXT ORDER BY ID DESC"),
              "UPDATE D6801 SET PYM='X' WHERE KM_ID='1001'");
    EXPECT_TRUE(automation::check_books(*session_).empty());
}

TEST_F(DirectChanges, of_the_log_itself_are_found_and_what_leaves_no_trace_is_refused) {
    EXPECT_FALSE(run("DROP TABLE SYS_LOG").ok());
    EXPECT_FALSE(run("DROP TABLE SYS_LOG_TEXT").ok());
    ASSERT_TRUE(run("DELETE FROM SYS_LOG WHERE ID=(SELECT MAX(ID) FROM SYS_LOG)").ok());
    EXPECT_FALSE(automation::check_books(*session_).empty());
}

TEST(DirectChangesOf, a_database_without_a_log_are_nobodys_business) {
    const auto session = open_database(":memory:");
    const SystemClock clock;
    log_direct_changes(*session, clock, "(anna)");
    EXPECT_TRUE(automation::collect(*session, "CREATE TABLE T (A int)").outcome.ok());
}

} // namespace app
