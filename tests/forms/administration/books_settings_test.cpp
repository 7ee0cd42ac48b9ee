// Settings of the books: there is no way back from the strict way once something was posted.
#include "tests/forms/administration/administration_desk.h"

namespace tests {
namespace {

class BooksSettings : public AdministrationDesk {
protected:
    std::string setting(const std::string& name) {
        return books.value("SELECT VALUE FROM SYS_SETTING WHERE NAME='" + name + "'");
    }
    void choose(const std::string& mode) {
        admin.open_host("books");
        admin.click(mode);
        admin.click("btn_ok");
    }
};

TEST_F(BooksSettings, new_books_are_kept_the_small_way_by_one_person) {
    admin.open_host("books");
    EXPECT_TRUE(admin.checked("SMALL"));
    EXPECT_FALSE(admin.checked("TWO_PERSONS"));
    EXPECT_EQ(admin.value("COMPANY"), "测试公司");
}

TEST_F(BooksSettings, strict_books_demand_two_persons) {
    admin.open_host("books");
    admin.click("STRICT");
    EXPECT_TRUE(admin.checked("TWO_PERSONS"));
    EXPECT_FALSE(admin.enabled("TWO_PERSONS"));
    admin.set("COMPANY", "新'公司");
    admin.click("btn_ok");
    EXPECT_EQ(setting("mode"), "strict");
    EXPECT_EQ(setting("two_persons"), "1");
    EXPECT_EQ(setting("company"), "新'公司");
    EXPECT_EQ(last_log("FUNCTION_CODE"), "books");
    EXPECT_EQ(last_log("DOC_KEY"), "strict");
}

TEST_F(BooksSettings, the_way_back_is_open_until_something_was_posted) {
    choose("STRICT");
    choose("SMALL");
    EXPECT_EQ(setting("mode"), "small");
    choose("STRICT");
    books.execute("INSERT INTO D6601 (NOID,PZQJ,PZZ,PZZ_H,BDATE,USER_ID,T,D) VALUES "
                  "('x','2024-03','记',1,'2024-03-05','li',1,1)");
    choose("SMALL");
    admin.expect_message("已经登过帐,不能从严格方式改回小企业方式!");
    EXPECT_EQ(setting("mode"), "strict");
}

TEST_F(BooksSettings, advances_may_be_used_up_beyond_what_was_paid_unless_the_books_forbid_it) {
    admin.open_host("books");
    EXPECT_FALSE(admin.checked("ADVANCE_LIMIT"));
    admin.check("ADVANCE_LIMIT");
    admin.click("btn_ok");
    EXPECT_EQ(setting("advance_limit"), "1");
    admin.open_host("books");
    EXPECT_TRUE(admin.checked("ADVANCE_LIMIT"));
}

TEST_F(BooksSettings, books_have_a_company_name) {
    admin.open_host("books");
    admin.set("COMPANY", "");
    admin.cannot_click("btn_ok");
    admin.expect_message("公司名称不能为空，请录入!");
    EXPECT_EQ(setting("company"), "测试公司");
}

} // namespace
} // namespace tests
