// Users: who may come in, with which roles; somebody always administers the books.
#include "app/login/password.h"
#include "tests/forms/administration/administration_desk.h"

namespace tests {
namespace {

using Users = AdministrationDesk;

const std::string nobody_left = "至少要有一个启用的系统管理员,请先指定另一个系统管理员!";

TEST_F(Users, a_new_user_gets_his_roles_and_his_password_and_is_shown) {
    admin.open_host("users");
    EXPECT_EQ(admin.caption(), "用户");
    admin.click("Act_Add");
    admin.set("USER_ID", "li");
    admin.set("USER_NAME", "李会计");
    EXPECT_EQ(admin.rows("Roles")[2].at("ROLE_NAME"), "会计主管");
    admin.cell(2, "HAS", "1", "Roles");
    admin.set("PASSWORD1", "秘密");
    admin.set("PASSWORD2", "秘密");
    admin.click("btn_ok");
    admin.expect_active("TFrm_Users");
    const Rows rows = admin.rows();
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[1].at("ROLES"), "会计主管");
    EXPECT_EQ(rows[1].at("HAS_PASSWORD"), "已设");
    const std::string hash =
        books.value("SELECT PASSWORD_HASH FROM SYS_USER WHERE USER_ID='li'");
    EXPECT_TRUE(app::fits("秘密", hash));
    EXPECT_EQ(last_log("FUNCTION_CODE"), "users");
    EXPECT_EQ(last_log("DOC_KEY"), "li");
    EXPECT_EQ(last_log("OPERATION"), "Add");
}

TEST_F(Users, passwords_that_differ_are_refused) {
    admin.open_host("users");
    admin.click("Act_Add");
    admin.set("USER_ID", "li");
    admin.set("USER_NAME", "李会计");
    admin.set("PASSWORD1", "a");
    admin.set("PASSWORD2", "b");
    admin.click("btn_ok");
    admin.expect_message("两次输入的密码不一样,请重新输入!");
    EXPECT_EQ(admin.focused(), "PASSWORD1");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM SYS_USER"), "1");
}

TEST_F(Users, a_user_number_is_taken_once_and_never_changes) {
    add_user("li", "李会计");
    admin.click("Act_Add");
    admin.set("USER_ID", "LI");
    admin.cannot_set("USER_NAME", "李会计");
    admin.expect_message("用户号“LI”已登记,请换一个!");
    admin.click("btn_Cancel");
    admin.row(1);
    admin.click("Act_Modify");
    EXPECT_EQ(admin.cannot_set("USER_ID", "wang"), "USER_ID is read-only");
}

TEST_F(Users, a_change_keeps_the_password_unless_it_is_to_be_set_anew) {
    add_user("li", "李会计");
    books.execute("UPDATE SYS_USER SET PASSWORD_HASH='kept' WHERE USER_ID='li'");
    admin.row(1);
    admin.click("Act_Modify");
    EXPECT_FALSE(admin.enabled("PASSWORD1"));
    admin.set("USER_NAME", "李敏");
    admin.click("btn_ok");
    EXPECT_EQ(books.value("SELECT PASSWORD_HASH FROM SYS_USER WHERE USER_ID='li'"), "kept");
    admin.click("Act_Modify");
    admin.check("RESET");
    admin.set("PASSWORD1", "neu");
    admin.set("PASSWORD2", "neu");
    admin.click("btn_ok");
    EXPECT_TRUE(
        app::fits("neu", books.value("SELECT PASSWORD_HASH FROM SYS_USER WHERE USER_ID='li'")));
    EXPECT_EQ(books.value("SELECT USER_NAME FROM SYS_USER WHERE USER_ID='li'"), "李敏");
}

TEST_F(Users, the_last_administrator_stays_active_and_administrator) {
    admin.open_host("users");
    for (const char* mark : {"ADMINISTRATOR", "ACTIVE"}) {
        admin.row(0);
        admin.click("Act_Modify");
        admin.check(mark, false);
        admin.click("btn_ok");
        admin.expect_message(nobody_left);
        admin.click("btn_Cancel");
    }
    admin.click("Act_Delete");
    admin.expect_message(nobody_left);
}

// Two administrators who take the right from each other at the same moment: the database decides.
TEST_F(Users, the_database_itself_refuses_to_lose_the_last_administrator) {
    add_user("li", "李会计");
    books.execute("UPDATE SYS_USER SET ADMINISTRATOR=1 WHERE USER_ID='li'");
    admin.row(0);
    admin.click("Act_Modify");
    admin.check("ADMINISTRATOR", false);
    admin.inside([this] {
        books.execute("CREATE TRIGGER TR_QUICKER ON SYS_USER_ROLE AFTER DELETE AS "
                      "UPDATE SYS_USER SET ADMINISTRATOR=0 WHERE USER_ID='li'");
    });
    admin.click("btn_ok");
    admin.expect_message(nobody_left);
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM SYS_USER WHERE ADMINISTRATOR=1"), "2");
}

TEST_F(Users, who_has_left_traces_is_made_inactive_and_not_deleted) {
    add_user("li", "李会计");
    books.execute("INSERT INTO D6601 (NOID,PZQJ,PZZ,PZZ_H,BDATE,USER_ID) VALUES "
                  "('x','2024-03','记',1,'2024-03-05','li')");
    admin.row(1);
    admin.click("Act_Delete");
    admin.expect_message("“李会计”不能删除：已有该用户制作或操作的记录,请改为停用!");
    books.execute("DELETE FROM D6601 WHERE NOID='x'");
    admin.answer_next(true);
    admin.click("Act_Delete");
    admin.expect_question("确定要删除“李会计”吗？");
    EXPECT_EQ(admin.row_count(), 1);
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM SYS_USER"), "1");
}

TEST_F(Users, everybody_changes_his_own_password_with_the_old_one) {
    admin.open_host("password");
    admin.set("PASSWORD1", "neu");
    admin.set("PASSWORD2", "neu");
    admin.click("btn_ok");
    admin.expect_message("密码已修改,下次登录时使用新密码。");
    EXPECT_EQ(last_log("DOC_KEY"), "admin");
    EXPECT_EQ(last_log("FUNCTION_CODE"), "password");
    admin.open_host("password");
    admin.set("OLD", "falsch");
    admin.click("btn_ok");
    admin.expect_message("原密码不对,请重新输入!");
    EXPECT_EQ(admin.focused(), "OLD");
}

TEST_F(Users, a_name_that_is_no_function_is_refused) {
    EXPECT_EQ(admin.refused({{"op", "open"}, {"host", "user"}}),
              "the host has no function \"user\"");
}

} // namespace
} // namespace tests
