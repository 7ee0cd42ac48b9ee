// Type-ahead under a person's hands: what is typed stays unless a row of the list is taken.
#include <gtest/gtest.h>

#include <QApplication>
#include <QInputMethodEvent>
#include <QTest>

#include <algorithm>

#include "desktop/renderers/suggestion_popup.h"
#include "desktop/theme/text.h"
#include "host/contract/U_linkedit.h"
#include "host/ports/host.h"
#include "tests/desktop/desk.h"
#include "tests/desktop/forms.h"

namespace tests {
namespace {

const std::string chart = "SELECT KM_ID,KM_NAME2,PYM FROM V6801 ORDER BY KM_ID";

desktop::SuggestionPopup* list_shown() {
    for (QWidget* widget : QApplication::allWidgets()) {
        auto* popup = dynamic_cast<desktop::SuggestionPopup*>(widget);
        if (popup && popup->isVisible()) return popup;
    }
    return nullptr;
}

// A dialog whose account may be any text, with the cursor in it.
struct DialogDesk : Desk {
    DialogDesk() {
        data.answer(chart, {"KM_ID text", "KM_NAME2 text", "PYM text"},
                    {{"1001", "现金", "XJ"},
                     {"1002", "银行存款", "YHCK"},
                     {"100201", "银行存款-工行", "YHCKGH"},
                     {"1131", "应收帐款", "YSZK"}});
        form.Account.Text = "";
        form.Account.OnChange = [this] { form.Account.DisplayName = ""; };
        host::OfferCodes(form.Account, chart);
    }
    // The result of the dialog after `work` was done in it with the cursor in the account.
    int work(const std::function<void()>& in_account) {
        when_modal([this, in_account] {
            keys({"Tab", "Tab", "Tab"});
            EXPECT_EQ(form.ActiveControl(), &form.Account);
            in_account();
            if (form.ModalResult == 0) keys({"Enter"});
        });
        return form.ShowModal();
    }
    std::string account() const {
        return form.Account.Text.get() + "|" + form.Account.DisplayName.get();
    }
    TDialogForm form;
};

TEST(Suggestions, a_row_moved_to_is_taken_by_enter_and_the_dialog_stands) {
    DialogDesk desk;
    bool stood = false;
    desk.work([&] {
        desk.type("yh"); // 银行存款 by its initials
        desk.keep("link_suggestions");
        desk.keys({"Down", "Down", "Enter"});
        stood = desk.form.ModalResult == 0 && !list_shown();
    });
    EXPECT_TRUE(stood);
    EXPECT_EQ(desk.account(), "100201|银行存款-工行");
}

TEST(Suggestions, a_row_moved_to_is_taken_by_tab_which_goes_on) {
    DialogDesk desk;
    bool gone_on = false;
    desk.work([&] {
        desk.type("100");
        desk.keys({"Down", "Tab"});
        gone_on = desk.form.ActiveControl() != &desk.form.Account;
    });
    EXPECT_TRUE(gone_on);
    EXPECT_EQ(desk.account(), "1001|现金");
}

TEST(Suggestions, a_row_is_taken_by_the_mouse) {
    DialogDesk desk;
    desk.work([&] {
        desk.type("100");
        ASSERT_NE(list_shown(), nullptr);
        QTest::mouseClick(list_shown(), Qt::LeftButton, {}, QPoint(20, 1 + 12)); // the titles
        EXPECT_EQ(desk.account(), "100|");
        QTest::mouseClick(list_shown(), Qt::LeftButton, {}, QPoint(20, 1 + 24 + 28 + 14));
        EXPECT_EQ(desk.form.ActiveControl(), &desk.form.Account);
    });
    EXPECT_EQ(desk.account(), "1002|银行存款");
}

TEST(Suggestions, what_was_typed_stays_unless_a_row_is_chosen) {
    // keys after "10" was typed, text of the account
    const std::vector<std::pair<std::vector<std::string>, std::string>> rows = {
        {{"Enter"}, "10|"},
        {{"Tab"}, "10|"},
        {{"Down", "Up", "Enter"}, "10|"}, // back to what was typed
        {{"Down", "Esc", "Enter"}, "10|"},
        {{"0", "1", "Enter"}, "1001|"}, // a code in full is as good as chosen
    };
    for (const auto& [keys, account] : rows) {
        DialogDesk desk;
        EXPECT_EQ(desk.work([&, keys = keys] {
            desk.type("10");
            desk.keys(keys);
        }), host::mrOk);
        EXPECT_EQ(desk.account(), account) << keys.front();
    }
}

TEST(Suggestions, escape_closes_the_list_and_then_the_dialog) {
    DialogDesk desk;
    bool closed = false, stood = false;
    const auto result = desk.work([&] {
        desk.type("1");
        ASSERT_NE(list_shown(), nullptr);
        desk.keys({"Esc"});
        closed = list_shown() == nullptr;
        stood = desk.form.ModalResult == 0;
        desk.keys({"Esc"});
    });
    EXPECT_TRUE(closed);
    EXPECT_TRUE(stood);
    EXPECT_EQ(result, host::mrCancel);
}

TEST(Suggestions, nothing_is_read_or_shown_while_nothing_is_typed) {
    DialogDesk desk;
    const auto read = [&] {
        const auto& sent = desk.data.queries();
        return std::count(sent.begin(), sent.end(), chart);
    };
    desk.work([&] {
        EXPECT_EQ(list_shown(), nullptr);
        EXPECT_EQ(read(), 0);
        desk.type("1001");
        EXPECT_NE(list_shown(), nullptr);
        EXPECT_EQ(read(), 1); // once for the text, not for each of its characters
        desk.keys({"Backspace", "Backspace", "Backspace", "Backspace"});
        EXPECT_EQ(list_shown(), nullptr);
        desk.type("无此科目");
        EXPECT_EQ(list_shown(), nullptr);
    });
}

// ---- the cell of an account ----

struct VoucherDesk : Desk {
    VoucherDesk() : Desk([this](int) { (voucher = new TVoucherForm)->Show(); }) {
        keys({"Ctrl+G", "6", "6", "1", "Enter"});
        voucher->add_line("收货款", "", {}, {});
        keys({"Enter", "Enter", "Enter", "Enter", "Enter"}); // past the summary
    }
    std::string account() const { return voucher->Lines.text_at(0, 1); }
    TVoucherForm* voucher = nullptr;
};

// 1002 may be a branch of the chart as well as the beginning of 100201.
TEST(Suggestions, no_account_is_guessed_from_a_number_that_is_not_its_whole_code) {
    VoucherDesk desk;
    desk.type("1002");
    ASSERT_NE(list_shown(), nullptr);
    EXPECT_EQ(list_shown()->current(), -1);
    desk.keys({"Enter"});
    EXPECT_EQ(desk.messages, std::vector<std::string>{"科目不存在!"});
    EXPECT_EQ(desk.account(), "");
}

TEST(Suggestions, what_was_refused_stays_in_the_cell_to_be_typed_over) {
    VoucherDesk desk;
    desk.type("1002");
    desk.keys({"Enter"});
    ASSERT_EQ(desk.messages.size(), 1u);
    EXPECT_EQ(desk.voucher->DBGridEh.edit_text(), "1002");
    EXPECT_NE(list_shown(), nullptr); // 100201 is on offer
    desk.keys({"Enter"});
    EXPECT_EQ(desk.messages.size(), 2u); // still no account
    desk.type("1131");                   // over the marked text
    desk.keys({"Enter"});
    EXPECT_EQ(desk.messages.size(), 2u);
    EXPECT_EQ(desk.account(), "1131");
}

TEST(Suggestions, escape_gives_up_what_was_refused) {
    VoucherDesk desk;
    desk.type("1002");
    desk.keys({"Enter", "Esc", "Esc"}); // the list, the text
    EXPECT_FALSE(desk.voucher->DBGridEh.editing());
    EXPECT_EQ(desk.account(), "");
    EXPECT_EQ(host::the_host().active, desk.voucher);
}

TEST(Suggestions, a_whole_code_is_taken_by_enter_and_a_begun_one_after_it_was_chosen) {
    VoucherDesk desk;
    desk.type("1131");
    ASSERT_NE(list_shown(), nullptr);
    EXPECT_EQ(list_shown()->current(), 0);
    desk.keys({"Backspace", "Backspace", "Backspace", "Backspace"});
    desk.type("1002");
    desk.keys({"Down", "Enter"});
    EXPECT_EQ(desk.account(), "100201");
    EXPECT_TRUE(desk.messages.empty());
}

TEST(Suggestions, tab_takes_the_account_that_is_chosen_and_goes_on) {
    VoucherDesk desk;
    desk.type("ys");
    desk.keys({"Down", "Tab"});
    EXPECT_EQ(desk.account(), "2131");
    EXPECT_NE(desk.voucher->ActiveControl(), &desk.voucher->DBGridEh);
    EXPECT_TRUE(desk.messages.empty());
}

TEST(Suggestions, escape_closes_the_list_below_the_cell_and_keeps_what_was_typed) {
    VoucherDesk desk;
    desk.type("ys");
    ASSERT_NE(list_shown(), nullptr);
    desk.keys({"Esc"});
    EXPECT_EQ(list_shown(), nullptr);
    EXPECT_EQ(desk.voucher->DBGridEh.edit_text(), "ys");
    EXPECT_EQ(host::the_host().active, desk.voucher);
}

TEST(Suggestions, an_account_is_taken_by_the_mouse_and_the_amount_follows) {
    VoucherDesk desk;
    desk.type("ys");
    ASSERT_NE(list_shown(), nullptr);
    QTest::mouseClick(list_shown(), Qt::LeftButton, {}, QPoint(20, 1 + 14));
    desk.settle();
    desk.type("585");
    desk.keys({"Enter"});
    EXPECT_EQ(desk.account(), "1131");
    EXPECT_EQ(desk.voucher->Lines.Sum("J"), host::Amount::from_whole(585));
}

TEST(Suggestions, the_list_makes_room_while_an_input_method_composes) {
    VoucherDesk desk;
    desk.type("y");
    ASSERT_NE(list_shown(), nullptr);
    desk.keys({"Backspace"});
    desk.type("y");
    QInputMethodEvent composing(QStringLiteral("ying shou"), {});
    QApplication::sendEvent(QApplication::focusWidget(), &composing);
    EXPECT_EQ(list_shown(), nullptr);
    desk.keys({"Backspace"});
    QInputMethodEvent done;
    done.setCommitString(QStringLiteral("应收"));
    QApplication::sendEvent(QApplication::focusWidget(), &done);
    desk.settle();
    ASSERT_NE(list_shown(), nullptr);
    desk.keys({"Enter"});
    EXPECT_EQ(desk.account(), "1131");
}

TEST(Suggestions, a_long_chart_shows_ten_rows_and_is_scrolled_by_keys) {
    VoucherDesk desk;
    desk.voucher->DBGridEh.OnSuggest = [](const host::GridColumn&, const std::string&) {
        std::vector<host::Suggestion> all;
        for (int code = 1001; code <= 3000; ++code) {
            const std::string text = std::to_string(code);
            all.push_back({text, {text, "科目" + text, "KM", "借", "0.00"}, text});
        }
        return all;
    };
    desk.type("k");
    ASSERT_NE(list_shown(), nullptr);
    EXPECT_EQ(list_shown()->height(), 10 * 28 + 26 + 2);
    desk.keys({"PgDown", "PgDown", "Down"});
    EXPECT_EQ(list_shown()->current(), 21);
}

} // namespace
} // namespace tests
