// Who gets in.
#include "app/login/login.h"

#include <gtest/gtest.h>

#include "app/books/open.h"
#include "app/login/password.h"
#include "app/refusal.h"
#include "automation/sql/collected_result.h"
#include "tests/support/new_books.h"

namespace app {
namespace {

class LogIn : public ::testing::Test {
protected:
    LogIn() {
        automation::rows_of(*session_,
                            "INSERT INTO SYS_USER (USER_ID, USER_NAME, PASSWORD_HASH) VALUES "
                            "('li', '李会计', '" + hash_of("secret") + "'); "
                            "INSERT INTO SYS_USER (USER_ID, USER_NAME, ACTIVE) VALUES "
                            "('gone', '离职', 0)");
    }
    User with(const std::string& user, std::optional<std::string> password) {
        return log_in(*session_, user, [password] { return password; });
    }

    tests::TemporaryFolder folder_;
    std::unique_ptr<engines::Session> session_ = open_books(tests::new_books(folder_, "a.zf"));
};

} // namespace

TEST_F(LogIn, tells_apart_who_may_come_in) {
    EXPECT_EQ(with("li", "secret").name, "李会计");
    EXPECT_FALSE(with("li", "secret").administrator);
    EXPECT_TRUE(with("admin", std::nullopt).administrator); // has no password: is not asked for one
    // user       password     verdict
    EXPECT_THROW(with("li", "Secret"), Refusal);
    EXPECT_THROW(with("li", std::nullopt), Refusal);
    EXPECT_THROW(with("gone", ""), Refusal);
    EXPECT_THROW(with("nobody", "secret"), Refusal);
    EXPECT_THROW(with("li' OR 1=1 --", "secret"), Refusal);
}

TEST_F(LogIn, one_user_without_a_password_needs_no_question) {
    EXPECT_EQ(only_user(*session_), std::nullopt); // two may come in
    automation::rows_of(*session_, "UPDATE SYS_USER SET ACTIVE = 0 WHERE USER_ID = 'li'");
    EXPECT_EQ(only_user(*session_), "admin");
    automation::rows_of(*session_, "UPDATE SYS_USER SET PASSWORD_HASH = 'x'");
    EXPECT_EQ(only_user(*session_), std::nullopt);
}

} // namespace app
