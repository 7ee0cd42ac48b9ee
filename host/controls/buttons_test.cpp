// Buttons, check marks, radio groups and actions.
#include "host/controls/buttons.h"

#include "tests/support/fake_interface.h"

namespace host {

namespace {

class TSheet : public TForm {
public:
    TSheet() : TForm(nullptr) {}
    const char* ClassName() const override { return "TSheet"; }
    std::string RightsFunction() const override { return "662"; }
    TRadioButton R1{this, "R1", "全部"};
    TRadioButton R2{this, "R2", "已过帐"};
    TRadioButton S1{this, "S1", "全部"};
    TCheckBox CK1{this, "CK1", "现金流量"};
    TSpeedButton B1{this, "B1", "资产"};
    TSpeedButton B2{this, "B2", "负债"};
    TButton btn_ok{this, "btn_ok", "确定"};
    TAction Act_Audit{this, "Act_Audit", "审核", "F9"};
};

struct Buttons : ::testing::Test {
    tests::Desk desk;
    TSheet form;
};

} // namespace

TEST_F(Buttons, checking_one_of_a_group_unchecks_its_others_and_no_other_group) {
    form.S1.GroupIndex = 2;
    form.S1.Checked = true;
    form.R1.Checked = true;
    form.R2.Checked = true;
    EXPECT_FALSE(form.R1.Checked);
    EXPECT_TRUE(form.S1.Checked);
    int clicks = 0;
    form.R1.OnClick = [&] { ++clicks; };
    form.R1.set_checked(true);
    form.R1.set_checked(true);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(form.R2.value_text(), "false");
}

TEST_F(Buttons, space_turns_a_check_mark) {
    int clicks = 0;
    form.CK1.OnClick = [&] { ++clicks; };
    form.CK1.SetFocus();
    tests::press(form, "Space");
    EXPECT_TRUE(form.CK1.Checked);
    tests::press(form, "Space");
    EXPECT_FALSE(form.CK1.Checked);
    EXPECT_EQ(clicks, 2);
}

TEST_F(Buttons, of_a_row_of_buttons_one_is_down) {
    form.B1.GroupIndex = form.B2.GroupIndex = 1;
    form.B1.Click();
    form.B2.Click();
    EXPECT_FALSE(form.B1.Down);
    EXPECT_TRUE(form.B2.Down);
}

TEST_F(Buttons, a_button_that_cannot_be_used_is_not_pressed) {
    int clicks = 0;
    form.btn_ok.OnClick = [&] { ++clicks; };
    form.btn_ok.Enabled = false;
    form.btn_ok.Click();
    form.btn_ok.Enabled = true;
    form.btn_ok.Visible = false;
    form.btn_ok.Click();
    EXPECT_EQ(clicks, 0);
}

TEST_F(Buttons, an_action_without_the_right_is_refused_by_name) {
    int done = 0;
    form.Act_Audit.OnExecute = [&] { ++done; };
    form.Act_Audit.Right = "audit";
    the_host().may = [](const Right& right) {
        return !(right.function == "662" && right.action == "audit");
    };
    EXPECT_FALSE(form.Act_Audit.Execute());
    EXPECT_EQ(desk.ui.last_message(), "您没有“审核”的权限，请与系统管理员联系。");
    EXPECT_EQ(done, 0);
    the_host().may = [](const Right&) { return true; };
    tests::press(form, "F9");
    EXPECT_EQ(done, 1);
}

} // namespace host
