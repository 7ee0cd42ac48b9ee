// Work by keyboard alone: what is typed arrives, what is refused brings the focus back.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>

#include "tests/desktop/desk.h"
#include "tests/desktop/forms.h"

#include "desktop/theme/text.h"
#include "host/ports/host.h"

namespace tests {
namespace {

using host::Amount;

QString text_in_focus() {
    auto* edit = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    return edit ? edit->text() : QStringLiteral("<no edit>");
}

// Opens the voucher for 661 and the list for 662.
struct OfficeDesk : Desk {
    OfficeDesk()
        : Desk([this](int code) {
              if (code == 661) (voucher = new TVoucherForm)->Show();
              else if (code == 662) (list = new TListForm(38))->Show();
              else host::the_host().ui->inform("模块暂不开放!" + std::to_string(code));
          }) {}
    TVoucherForm* voucher = nullptr;
    TListForm* list = nullptr;
};

TEST(Keyboard, a_function_is_found_by_its_code) {
    OfficeDesk desk;
    desk.keys({"Ctrl+G", "6", "6", "1", "Enter"});
    ASSERT_NE(desk.voucher, nullptr);
    EXPECT_EQ(host::the_host().active, desk.voucher);
}

TEST(Keyboard, a_function_is_found_by_its_pinyin) {
    OfficeDesk desk;
    desk.keys({"Ctrl+G", "p", "z", "s", "h", "Enter"});
    ASSERT_NE(desk.list, nullptr);
}

TEST(Keyboard, a_function_that_does_not_exist_yet_says_so) {
    OfficeDesk desk;
    desk.keys({"Ctrl+G", "6", "4", "8", "Enter"});
    EXPECT_EQ(desk.messages, std::vector<std::string>{"模块暂不开放!648"});
}

TEST(Keyboard, a_voucher_is_typed_and_saved_without_the_mouse) {
    OfficeDesk desk;
    desk.keys({"Ctrl+G", "6", "6", "1", "Enter"});
    ASSERT_NE(desk.voucher, nullptr);
    auto& lines = desk.voucher->Lines;
    desk.voucher->add_line("", "", {}, {});
    desk.keys({"Enter", "Enter", "Enter", "Enter"}); // word, number, date, attachments
    EXPECT_EQ(desk.voucher->ActiveControl(), &desk.voucher->DBGridEh);
    desk.type("收货款");
    desk.keys({"Enter"});
    desk.type("1131");
    desk.keys({"Enter"});
    desk.type("585");
    desk.keys({"Enter", "Enter"}); // past the credit side into a new line
    desk.type("冲帐");
    desk.keys({"Enter"});
    desk.type("2131");
    desk.keys({"Enter", "Enter"}); // past the debit side
    desk.type("585.00");
    desk.keys({"F2"});
    EXPECT_TRUE(desk.messages.empty());
    EXPECT_EQ(desk.voucher->saved, 1);
    ASSERT_EQ(lines.RecordCount(), 2);
    EXPECT_EQ(lines.text_at(0, 0), "收货款");
    EXPECT_EQ(lines.text_at(0, 2), "应收帐款");
    EXPECT_EQ(lines.text_at(1, 1), "2131");
    EXPECT_EQ(lines.Sum("J"), Amount::from_whole(585));
    EXPECT_EQ(lines.Sum("D"), Amount::from_whole(585));
}

TEST(Keyboard, a_voucher_that_does_not_balance_is_refused_with_its_sentence) {
    OfficeDesk desk;
    desk.keys({"Ctrl+G", "6", "6", "1", "Enter"});
    desk.voucher->add_line("收货款", "1131", Amount::from_whole(100), {});
    desk.keys({"F2"});
    EXPECT_EQ(desk.messages, std::vector<std::string>{"借贷不平衡!"});
    EXPECT_EQ(desk.voucher->saved, 0);
}

TEST(Keyboard, an_unknown_account_leaves_the_cursor_in_its_cell) {
    OfficeDesk desk;
    desk.keys({"Ctrl+G", "6", "6", "1", "Enter"});
    desk.voucher->add_line("收货款", "", {}, {});
    desk.keys({"Enter", "Enter", "Enter", "Enter", "Enter"}); // past the summary
    ASSERT_EQ(desk.voucher->DBGridEh.column(), 1);
    desk.type("9999");
    desk.keys({"Enter"});
    EXPECT_EQ(desk.messages, std::vector<std::string>{"科目不存在!"});
    EXPECT_EQ(desk.voucher->DBGridEh.column(), 1);
    EXPECT_EQ(desk.voucher->ActiveControl(), &desk.voucher->DBGridEh);
    EXPECT_NE(text_in_focus(), "<no edit>");
}

TEST(Keyboard, an_account_is_taken_from_the_list_below_the_cell) {
    OfficeDesk desk;
    desk.keys({"Ctrl+G", "6", "6", "1", "Enter"});
    desk.voucher->add_line("收货款", "", {}, {});
    desk.keys({"Enter", "Enter", "Enter", "Enter", "Enter"});
    desk.type("ys"); // 应收帐款, 预收帐款, 运输费 share these initials
    desk.keep("suggestions");
    desk.keys({"Down", "Enter"});
    EXPECT_EQ(desk.voucher->Lines.text_at(0, 1), "2131");
    EXPECT_EQ(desk.voucher->DBGridEh.column(), 3); // and the cursor went on to the amount
}

TEST(Keyboard, escape_closes_a_form_and_asks_when_something_is_unsaved) {
    OfficeDesk desk;
    desk.keys({"Ctrl+G", "6", "6", "1", "Enter"});
    desk.voucher->add_line("收货款", "1131", Amount::from_whole(100), {});
    desk.keys({"Esc"}); // the question is answered by Enter, which is no
    ASSERT_EQ(desk.messages.size(), 1u);
    EXPECT_EQ(desk.messages[0], "“记帐凭证”中有尚未保存的内容，确定不保存就离开吗？");
    EXPECT_EQ(host::the_host().forms.size(), 1u);
    desk.answers = {true};
    desk.keys({"Esc"});
    EXPECT_TRUE(host::the_host().forms.empty());
}

TEST(Keyboard, a_field_that_refuses_keeps_the_focus) {
    Desk desk;
    TDialogForm form;
    const host::TWinControl* stayed = nullptr;
    QString text;
    desk.when_modal([&] {
        desk.keys({"x", "Tab"}); // upper case by itself; X is refused on leaving
        stayed = form.ActiveControl();
        text = text_in_focus();
        desk.keys({"Esc"});
    });
    EXPECT_EQ(form.ShowModal(), host::mrCancel);
    EXPECT_EQ(stayed, &form.Code);
    EXPECT_EQ(text, "X");
    EXPECT_EQ(desk.messages, std::vector<std::string>{"代号不能为X!"});
}

TEST(Keyboard, a_dialog_is_filled_and_confirmed_by_keys) {
    Desk desk;
    TDialogForm form;
    desk.when_modal([&] {
        desk.keys({"a", "b", "Tab"});
        desk.type("2017");
        desk.keys({"Tab", "Down", "Tab", "Tab", "Tab", "Space", "Tab", "Space"});
        desk.keys({"Enter"}); // the default button, wherever the focus is
    });
    EXPECT_EQ(form.ShowModal(), host::mrOk);
    EXPECT_EQ(form.Code.Text.get(), "AB");
    EXPECT_EQ(form.Year.as_integer(), 2017);
    EXPECT_EQ(form.Month.Text.get(), "7");
    EXPECT_TRUE(form.Credit.Checked);
    EXPECT_FALSE(form.Debit.Checked);
    EXPECT_TRUE(form.Cash.Checked);
}

TEST(Keyboard, the_keys_of_a_list_reach_its_actions) {
    OfficeDesk desk;
    desk.keys({"Ctrl+G", "6", "6", "2", "Enter", "F5"});
    ASSERT_NE(desk.list, nullptr);
    EXPECT_EQ(desk.list->refreshed, 1);
}

} // namespace
} // namespace tests
