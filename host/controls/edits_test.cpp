// Edits take what can be meant and refuse the rest with a message.
#include "host/controls/edits.h"

#include "host/values/errors.h"
#include "tests/support/fake_interface.h"

namespace host {

namespace {

class TSheet : public TForm {
public:
    TSheet() : TForm(nullptr) {}
    const char* ClassName() const override { return "TSheet"; }
    TEdit Code{this, "Code", "代 号:"};
    TNumberEdit Level{this, "Level", "级别"};
    TDateEdit Day{this, "Day", "日期"};
    TComboBox Word{this, "Word", "凭证字"};
    TLinkEdit Account{this, "Account", "科目"};
    TMemo Note{this, "Note", "备注"};
};

class Edits : public ::testing::Test {
protected:
    void refuse(TWinControl& control, const std::string& text, const std::string& message) {
        const std::string before = control.value_text();
        EXPECT_THROW(control.enter_text(text), EAbort) << text;
        EXPECT_NE(desk.ui.last_message().find(message), std::string::npos)
            << desk.ui.last_message();
        EXPECT_EQ(control.value_text(), before);
    }
    tests::Desk desk;
    TSheet form;
};

} // namespace

TEST_F(Edits, the_first_character_replaces_what_is_marked) {
    form.Code.Text = "old";
    form.Code.SetFocus();
    tests::type(form, "1002");
    EXPECT_EQ(form.Code.Text.get(), "1002");
    tests::press(form, "Home");
    tests::press(form, "Delete");
    tests::type(form, "9");
    tests::press(form, "End");
    tests::press(form, "Backspace");
    EXPECT_EQ(form.Code.Text.get(), "900");
}

TEST_F(Edits, length_counts_characters_and_more_is_refused) {
    form.Code.MaxLength = 3;
    form.Code.SetFocus();
    tests::type(form, "银行存款");
    EXPECT_EQ(form.Code.Text.get(), "银行存");
    refuse(form.Code, "银行存款", "“代号”最多 3 个字，录入了 4 个字");
    form.Code.enter_text("😀😀😀");
    EXPECT_EQ(form.Code.Text.get(), "😀😀😀");
}

TEST_F(Edits, any_printable_text_is_kept_as_typed) {
    std::string long_text;
    for (int i = 0; i < 10'000; ++i) long_text += "帐";
    for (const std::string& text : {std::string("O'Brien; --"), std::string("a\"b"), long_text}) {
        form.Code.enter_text(text);
        EXPECT_EQ(form.Code.Text.get(), text);
    }
    refuse(form.Code, "a\nb", "第 2 个字不能显示");
    refuse(form.Code, "ab\xFF", "第 3 个字不能显示");
    form.Note.enter_text("two\nlines");
    EXPECT_EQ(form.Note.Text.get(), "two\nlines");
}

TEST_F(Edits, a_change_is_told_once_and_no_change_never) {
    int told = 0;
    form.Code.OnChange = [&] { ++told; };
    form.Code.Text = "1";
    form.Code.Text = "1";
    form.Code.Visible = false;
    EXPECT_EQ(told, 1);
}

TEST_F(Edits, upper_case_edits_raise_letters) {
    form.Code.UpperCase = true;
    form.Code.enter_text("ab1银");
    EXPECT_EQ(form.Code.Text.get(), "AB1银");
}

TEST_F(Edits, numbers_stay_numbers_within_their_range) {
    form.Level.Min = Amount::from_whole(1);
    form.Level.Max = Amount::from_whole(5);
    form.Level.enter_text("3");
    EXPECT_EQ(form.Level.as_integer(), 3);
    EXPECT_THROW(form.Level.enter_text("x"), EAbort);
    EXPECT_EQ(desk.ui.last_message(), "“级别”不能是“x”，请录入数字。");
    EXPECT_THROW(form.Level.enter_text("6"), EAbort);
    EXPECT_EQ(desk.ui.last_message(), "“级别”不能是“6”，请录入 1 到 5 之间的数字。");
    form.Level.Text = "";
    EXPECT_EQ(form.Level.as_integer(), 1); // empty is the least there is
}

TEST_F(Edits, a_number_without_decimals_is_whole_and_never_rounded) {
    EXPECT_THROW(form.Level.enter_text("2.5"), EAbort);
    EXPECT_EQ(desk.ui.last_message(), "“级别”不能是“2.5”，请录入整数。");
    form.Level.enter_text("2.0");
    EXPECT_EQ(form.Level.Text.get(), "2");
}

TEST_F(Edits, up_and_down_step_a_number_and_stop_at_its_ends) {
    form.Level.Min = Amount::from_whole(1);
    form.Level.Max = Amount::from_whole(2);
    form.Level.set(std::int64_t{1});
    form.Level.SetFocus();
    tests::press(form, "Up");
    tests::press(form, "Up");
    EXPECT_EQ(form.Level.Text.get(), "2");
    tests::press(form, "Down");
    tests::press(form, "Down");
    EXPECT_EQ(form.Level.Text.get(), "1");
}

TEST_F(Edits, only_what_a_number_is_made_of_can_be_typed_into_it) {
    form.Level.Min = Amount();
    form.Level.SetFocus();
    tests::type(form, "-1a2.");
    EXPECT_EQ(form.Level.Text.get(), "12");
    tests::press(form, "Tab");
    EXPECT_EQ(form.Level.Text.get(), "12");
}

TEST_F(Edits, a_day_is_understood_in_every_usual_way) {
    // typed        day, on 2024-03-15
    for (const auto& [typed, day] : std::vector<std::pair<std::string, std::string>>{
             {"2024-01-31", "2024-01-31"}, {"20240131", "2024-01-31"}, {"2024/1/31", "2024-01-31"},
             {"5", "2024-03-05"},          {"2-29", "2024-02-29"},     {"1/7", "2024-01-07"}}) {
        form.Day.enter_text(typed);
        EXPECT_EQ(form.Day.Text.get(), day) << typed;
    }
    refuse(form.Day, "2023-02-29", "“日期”不能是“2023-02-29”");
    refuse(form.Day, "32", "请录入日期");
    form.Day.enter_text("");
    EXPECT_FALSE(form.Day.date());
    EXPECT_EQ(form.Day.value().to_text(), "2024-03-15");
}

TEST_F(Edits, leaving_a_day_puts_it_into_its_form_or_holds_the_focus) {
    form.Day.SetFocus();
    tests::type(form, "5");
    tests::press(form, "Enter");
    EXPECT_EQ(form.Day.Text.get(), "2024-03-05");
    EXPECT_FALSE(form.Day.focused());
    form.Day.SetFocus();
    tests::type(form, "99");
    tests::press(form, "Enter");
    EXPECT_TRUE(form.Day.focused());
}

TEST_F(Edits, a_choice_takes_its_items_only) {
    form.Word.Items = std::vector<std::string>{"收", "付", "转"};
    form.Word.enter_text("付");
    EXPECT_EQ(form.Word.item_index(), 1);
    refuse(form.Word, "记", "请从以下各项中选择：收、付、转");
    form.Word.SetFocus();
    tests::press(form, "Down");
    tests::press(form, "Down");
    EXPECT_EQ(form.Word.Text.get(), "转");
    tests::type(form, "s"); // by ear
    EXPECT_EQ(form.Word.Text.get(), "收");
    form.Word.DropDownList = false;
    form.Word.enter_text("记");
    EXPECT_EQ(form.Word.item_index(), -1);
}

TEST_F(Edits, f4_presses_the_lookup_button) {
    int pressed = 0;
    form.Account.OnButtonClick = [&] { ++pressed; };
    form.Account.SetFocus();
    tests::press(form, "F4");
    EXPECT_EQ(pressed, 1);
}

TEST_F(Edits, what_is_read_only_is_not_typed_into) {
    form.Code.Text = "1";
    form.Code.SetFocus();
    form.Code.ReadOnly = true;
    tests::type(form, "2");
    tests::press(form, "Backspace");
    EXPECT_EQ(form.Code.Text.get(), "1");
    refuse(form.Code, "2", "不能修改");
}

} // namespace host
