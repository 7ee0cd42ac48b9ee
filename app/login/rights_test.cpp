// What a person may do follows from his roles.
#include "app/login/rights.h"

#include <gtest/gtest.h>

#include "app/books/open.h"
#include "app/refusal.h"
#include "automation/sql/collected_result.h"
#include "tests/support/new_books.h"

namespace app {
namespace {

class RightsOfUsers : public ::testing::Test {
protected:
    Rights of(const std::string& user, bool administrator = false) {
        return Rights::of(*session_, {user, user, administrator});
    }
    void run(const std::string& batch) { automation::rows_of(*session_, batch); }

    tests::TemporaryFolder folder_;
    std::unique_ptr<engines::Session> session_ = open_books(tests::new_books(folder_, "a.zf"));
};

} // namespace

TEST_F(RightsOfUsers, a_user_may_what_any_of_his_roles_may) {
    run("INSERT INTO SYS_USER_ROLE (USER_ID, ROLE_ID) VALUES ('li','制单会计'), ('li','审核')");
    const Rights li = of("li");
    // function  action    verdict
    EXPECT_TRUE(li.allow({"661", "add"}));
    EXPECT_TRUE(li.allow({"662", "audit"}));
    EXPECT_FALSE(li.allow({"663", "open"}));
    EXPECT_FALSE(li.allow({"books", "open"}));
    EXPECT_FALSE(li.allow({"", "export"}));
}

TEST_F(RightsOfUsers, a_user_without_a_role_may_nothing) {
    EXPECT_FALSE(of("li").allow({"661", "open"}));
    EXPECT_FALSE(of("li'; --").allow({"661", "open"}));
}

TEST_F(RightsOfUsers, an_administrator_may_everything) {
    EXPECT_TRUE(of("admin", true).allow({"663", "post"}));
    EXPECT_TRUE(of("admin", true).allow({"users", "change"}));
}

// Whoever could give rights to himself would have all of them.
TEST_F(RightsOfUsers, users_and_roles_are_the_administrators_whatever_a_role_says) {
    run("INSERT INTO SYS_ROLE_RIGHT (ROLE_ID, FUNCTION_CODE, ACTION) VALUES "
        "('查询','users','open'), ('查询','roles','change'), ('查询','books','open');"
        "INSERT INTO SYS_USER_ROLE (USER_ID, ROLE_ID) VALUES ('li','查询')");
    EXPECT_FALSE(of("li").allow({"users", "open"}));
    EXPECT_FALSE(of("li").allow({"roles", "change"}));
    EXPECT_TRUE(of("li").allow({"books", "open"}));
}

TEST_F(RightsOfUsers, rights_count_as_they_stood_at_the_login) {
    run("INSERT INTO SYS_USER_ROLE (USER_ID, ROLE_ID) VALUES ('li','查询')");
    const Rights before = of("li");
    run("DELETE FROM SYS_USER_ROLE WHERE USER_ID = 'li'");
    EXPECT_TRUE(before.allow({"689", "open"}));
    EXPECT_FALSE(of("li").allow({"689", "open"}));
}

TEST_F(RightsOfUsers, books_without_role_tables_wait_for_the_administrator) {
    run("DROP TABLE SYS_USER_ROLE");
    EXPECT_THROW(of("li"), Refusal);
    EXPECT_TRUE(of("admin", true).allow({"661", "add"}));
}

} // namespace app
