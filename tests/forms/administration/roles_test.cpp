// Roles: what is marked is what the role may.
#include "tests/forms/administration/administration_desk.h"

namespace tests {
namespace {

class Roles : public AdministrationDesk {
protected:
    void open_role(const std::string& name) {
        admin.open_host("roles");
        const Rows roles = admin.rows();
        for (std::size_t at = 0; at < roles.size(); ++at)
            if (roles[at].at("ROLE_ID") == name) admin.row(static_cast<int>(at));
        admin.click("Act_Modify");
    }
    int row_of(const std::string& function) {
        const Rows rows = admin.rows();
        for (std::size_t at = 0; at < rows.size(); ++at)
            if (rows[at].at("KEY") == function) return static_cast<int>(at);
        ADD_FAILURE() << function;
        return 0;
    }
    std::string actions(const std::string& role, const std::string& function) {
        return books.value("SELECT STRING_AGG(ACTION,' ') FROM SYS_ROLE_RIGHT WHERE ROLE_ID='" +
                           role + "' AND FUNCTION_CODE='" + function + "'");
    }
};

TEST_F(Roles, new_books_have_the_roles_of_a_small_office) {
    admin.open_host("roles");
    EXPECT_EQ(admin.row_count(), 5);
    // role        function  may
    EXPECT_EQ(actions("审核", "662"), "audit export open print");
    EXPECT_EQ(actions("审核", "661"), "export open print");
    EXPECT_EQ(actions("制单会计", "661"), "add change delete export open print");
    EXPECT_EQ(actions("制单会计", "662"), "<null>");
    EXPECT_EQ(actions("制单会计", "663"), "<null>");
    EXPECT_EQ(actions("会计主管", "663"), "open post");
    EXPECT_EQ(actions("出纳", "648"), "add change delete export open print");
    EXPECT_EQ(actions("查询", "689"), "export open print");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM SYS_ROLE_RIGHT WHERE FUNCTION_CODE NOT LIKE '6%'"),
              "0");
}

TEST_F(Roles, marks_are_saved_as_rights_and_read_back) {
    open_role("查询");
    admin.cell(row_of("681"), "CHANGE", "1");
    admin.cell(row_of("689"), "EXPORT", "0");
    admin.click("btn_ok");
    EXPECT_EQ(actions("查询", "681"), "change export open print");
    EXPECT_EQ(actions("查询", "689"), "open print");
    admin.click("Act_Modify");
    EXPECT_EQ(admin.rows()[static_cast<std::size_t>(row_of("681"))].at("CHANGE"), "True");
    EXPECT_EQ(last_log("FUNCTION_CODE"), "roles");
}

TEST_F(Roles, an_action_takes_opening_along_and_without_opening_nothing_is_left) {
    open_role("出纳");
    const int row = row_of("662");
    admin.cell(row, "AUDIT", "1");
    EXPECT_EQ(admin.rows()[static_cast<std::size_t>(row)].at("OPEN"), "True");
    admin.cell(row, "OPEN", "0");
    EXPECT_EQ(admin.rows()[static_cast<std::size_t>(row)].at("AUDIT"), "False");
}

TEST_F(Roles, an_action_that_a_function_does_not_have_is_an_empty_cell) {
    open_role("出纳");
    const auto cells = admin.rows()[static_cast<std::size_t>(row_of("689"))];
    EXPECT_EQ(cells.at("EXPORT"), "False");
    EXPECT_EQ(cells.at("POST"), "");
    admin.row(row_of("689"));
    admin.click("btn_row");
    EXPECT_EQ(admin.rows()[static_cast<std::size_t>(row_of("689"))].at("POST"), "");
}

TEST_F(Roles, an_action_that_a_function_does_not_have_cannot_be_marked) {
    open_role("出纳");
    admin.cannot_cell(row_of("689"), "POST", "1");
    admin.expect_message("“试算平衡表”没有“登帐”这项操作。");
}

TEST_F(Roles, a_row_or_the_whole_sheet_is_marked_at_once) {
    open_role("出纳");
    admin.click("btn_none");
    admin.row(row_of("663"));
    admin.click("btn_row");
    admin.click("btn_ok");
    EXPECT_EQ(books.value("SELECT STRING_AGG(FUNCTION_CODE+' '+ACTION,',') FROM SYS_ROLE_RIGHT "
                          "WHERE ROLE_ID='出纳'"),
              "663 open,663 post");
}

TEST_F(Roles, a_new_role_begins_with_the_marks_of_the_one_it_is_copied_from) {
    admin.open_host("roles");
    admin.click("Act_CopyAdd");
    admin.set("ROLE_ID", "助理");
    admin.set("ROLE_NAME", "会计助理");
    admin.click("btn_ok");
    admin.expect_active("TFrm_Roles");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM SYS_ROLE_RIGHT WHERE ROLE_ID='助理'"),
              books.value("SELECT COUNT(*) FROM SYS_ROLE_RIGHT WHERE ROLE_ID='查询'"));
}

TEST_F(Roles, a_role_that_somebody_has_is_not_deleted) {
    add_user("li", "李会计", {0});
    admin.open_host("roles");
    admin.row(0);
    admin.click("Act_Delete");
    admin.expect_message("“查询”不能删除：还有用户属于该角色!");
}

TEST_F(Roles, users_and_roles_are_granted_to_no_role) {
    open_role("出纳");
    for (const Row& row : admin.rows()) {
        EXPECT_NE(row.at("KEY"), "users");
        EXPECT_NE(row.at("KEY"), "roles");
    }
}

} // namespace
} // namespace tests
