// Money moved between own accounts, typed by keys alone.
#include <gtest/gtest.h>

#include "host/contract/U_glo.h"
#include "host/forms/form.h"
#include "host/ports/host.h"
#include "tests/desktop/desk.h"
#include "tests/forms/small_books.h"
#include "tests/support/module_library.h"

namespace tests {
namespace {

struct CashDesk : Desk {
    CashDesk()
        : Desk(
              [](int code) {
                  host::Trecord record;
                  record.set_code(code);
                  module_entry()(record, nullptr);
              },
              "2024-03-15") {
        answer_as_small_books(data);
        data.answer("SELECT D653.NOID, D653.BDATE",
                    {"NOID text", "BDATE date", "EDATE date", "JY_ID_FK text", "JY_NAME_FK text",
                     "JY_ID_SK text", "JY_NAME_SK text", "MONEY money", "ZY text", "YW_ID text",
                     "YW_NAME text", "BM_ID text", "BM_NAME text", "USER_ID text",
                     "USER_NAME text"},
                    {});
        const std::vector<std::string> account = {"JY_ID text", "JY_NAME text"};
        data.answer("select JY_ID,JY_NAME from D1010", account, {{"1", "现金"}, {"2", "工行"}});
        data.answer("SELECT JY_ID,JY_NAME FROM D1010 WHERE JY_ID='1'", account, {{"1", "现金"}});
        data.answer("SELECT JY_ID,JY_NAME FROM D1010 WHERE JY_ID='2'", account, {{"2", "工行"}});
        data.answer("SELECT ZY,PYM FROM D6803", {"ZY text", "PYM text"}, {{"存现金", "CXJ"}});
        data.answer("SELECT NOID FROM SYS_NUMBER", {"NOID text"}, {});
        data.answer("SELECT NOID FROM D653", {"NOID text"}, {});
        host::G_UserId = "anna";
        host::G_UserName = "李敏";
    }
    std::string active() const {
        const host::TForm* form = host::the_host().active;
        return form ? form->ClassName() : "";
    }
};

TEST(CashForms, a_deposit_is_typed_from_the_menu_to_the_books_without_the_mouse) {
    CashDesk desk;
    desk.keys({"Ctrl+G", "6", "4", "8", "Enter"});
    ASSERT_EQ(desk.active(), "TF6648");
    desk.when_modal([&] {
        desk.keys({"1", "Tab"});
        desk.type("gh"); // 工行, by its initials
        desk.keys({"Down", "Enter", "Tab", "1", "0", "0", "0", "Tab"});
        desk.type("cx");
        desk.keys({"Down", "Enter"});
        desk.keep("648_1");
        desk.keys({"F2"});
    });
    desk.keys({"Insert"});
    EXPECT_EQ(desk.messages, std::vector<std::string>{});
    ASSERT_EQ(desk.data.executed().size(), 2U); // the number, then the document
    EXPECT_EQ(desk.data.executed().back().batch,
              "insert into D653 (NOID, BDATE, JY_ID_FK, JY_ID_SK, MONEY, ZY, YW_ID, BM_ID, USER_ID)"
              "ValueS('648240315001','2024-03-15','1','2','1000','存现金','','','anna')");
    EXPECT_EQ(desk.active(), "TF6648");
}

TEST(CashForms, the_same_account_twice_is_told_and_the_dialog_stays) {
    CashDesk desk;
    desk.keys({"Ctrl+G", "6", "4", "8", "Enter"});
    std::string still, focused;
    desk.when_modal([&] {
        desk.keys({"1", "Tab", "1", "Tab", "5", "F2"});
        still = desk.active();
        focused = host::the_host().active->ActiveControl()->Name();
        desk.answers.push_back(true); // leave without saving
        desk.keys({"Esc"});
    });
    desk.keys({"Insert"});
    ASSERT_FALSE(desk.messages.empty());
    EXPECT_EQ(desk.messages.front(), "付款帐户 和 收款帐户 不能相同!");
    EXPECT_EQ(still, "TF6648_1");
    EXPECT_EQ(focused, "JY_ID_FK");
}

} // namespace
} // namespace tests
