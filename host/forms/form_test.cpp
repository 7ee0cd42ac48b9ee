// A form: focus and exit handlers, where keys go, its life.
#include "host/forms/form.h"

#include "host/contract/U_function.h"
#include "host/forms/event_gate.h"
#include "host/values/errors.h"
#include "tests/support/fake_interface.h"

namespace host {

namespace {

class TSheet : public TForm {
public:
    explicit TSheet(TForm* parent = nullptr) : TForm(parent) {
        Caption = "单据";
        btn_ok.Default = true;
        btn_Cancel.Cancel = true;
        layout = Rows({Field("", Second), Field("", First), Field("", Locked),
                       Buttons({&btn_ok, &btn_Cancel})});
        Locked.ReadOnly = true;
    }
    ~TSheet() override {
        if (gone != nullptr) *gone = true;
    }
    const char* ClassName() const override { return "TSheet"; }
    TEdit First{this, "First", "甲"};
    TEdit Second{this, "Second", "乙"};
    TEdit Locked{this, "Locked", "丙"};
    TButton btn_ok{this, "btn_ok", "确定"};
    TButton btn_Cancel{this, "btn_Cancel", "取消"};
    TAction Act_Save{this, "Act_Save", "保存", "F2"};
    bool* gone = nullptr;
    bool dirty = false;
    std::function<void(Key&)> keys;

protected:
    bool has_unsaved_work() const override { return dirty; }
    void FormKeyDown(Key& key) override {
        if (keys) keys(key);
    }
};

struct Form : ::testing::Test {
    tests::Desk desk;
    TSheet form;
};

} // namespace

TEST_F(Form, the_tab_order_is_the_order_of_the_layout) {
    form.Show();
    EXPECT_TRUE(form.Second.focused());
    tests::press(form, "Tab");
    EXPECT_TRUE(form.First.focused());
    tests::press(form, "Tab"); // past the field that only shows
    EXPECT_TRUE(form.btn_ok.focused());
    tests::press(form, "Shift+Tab");
    EXPECT_TRUE(form.First.focused());
}

TEST_F(Form, leaving_a_field_runs_its_exit_which_may_hold_the_focus) {
    std::string heading;
    form.Second.OnExit = [&] {
        heading = form.FocusTarget() == nullptr ? "" : form.FocusTarget()->Name();
        if (form.Second.Text.get() == "bad") Abort();
    };
    form.Show();
    tests::type(form, "bad");
    EXPECT_FALSE(enter_event([&] { form.First.SetFocus(); }));
    EXPECT_TRUE(form.Second.focused());
    EXPECT_EQ(heading, "First");
    EXPECT_EQ(form.FocusTarget(), nullptr);
    form.Second.Text = "good";
    EXPECT_TRUE(enter_event([&] { form.First.SetFocus(); }));
    EXPECT_TRUE(form.First.focused());
}

TEST_F(Form, an_exit_handler_sees_that_the_focus_goes_to_cancel) {
    form.Second.OnExit = [&] {
        if (form.FocusTarget() != nullptr && form.FocusTarget()->Name() == "btn_Cancel") return;
        Abort();
    };
    int cancelled = 0;
    form.btn_Cancel.OnClick = [&] { ++cancelled; };
    form.Show();
    tests::press(form, "Enter"); // the default button is refused
    EXPECT_TRUE(form.Second.focused());
    tests::press(form, "Esc");
    EXPECT_EQ(cancelled, 1);
}

TEST_F(Form, an_exit_handler_that_puts_the_focus_back_and_aborts_keeps_it) {
    form.Second.OnExit = [&] { CheckBlank(form.Second, "编号"); };
    form.Show();
    tests::press(form, "Tab");
    EXPECT_TRUE(form.Second.focused());
    EXPECT_EQ(desk.ui.last_message(), "编号不能为空，请录入!");
}

// The code is left, but it is another field that is wrong: that one has to be reachable.
TEST_F(Form, an_exit_handler_that_sends_the_focus_elsewhere_and_aborts_is_asked_once) {
    form.Second.OnExit = [&] { CheckBlank(form.First, "编号"); };
    form.First.Text = "";
    form.Show();
    form.Second.SetFocus();
    desk.ui.messages.clear();
    EXPECT_FALSE(enter_event([&] { form.btn_ok.SetFocus(); }));
    EXPECT_TRUE(form.First.focused());
    EXPECT_EQ(desk.ui.messages.size(), 1u);
    form.Second.SetFocus();
    desk.ui.messages.clear();
    EXPECT_FALSE(enter_event([&] { form.CommitActive(); }));
    EXPECT_TRUE(form.First.focused());
    EXPECT_EQ(desk.ui.messages.size(), 1u);
}

TEST_F(Form, a_key_goes_to_the_form_then_the_control_then_the_shortcuts) {
    std::string heard;
    form.Act_Save.OnExecute = [&] { heard += "save "; };
    form.Second.OnKeyDown = [&](Key&) { heard += "control "; };
    form.keys = [&](Key& key) {
        heard += "form ";
        if (key.code == KeyCode::F5) key = {};
    };
    form.Show();
    tests::press(form, "F2");
    EXPECT_EQ(heard, "form control save ");
    heard.clear();
    tests::press(form, "F5");
    EXPECT_EQ(heard, "form ");
}

TEST_F(Form, enter_presses_the_default_button_before_it_goes_on) {
    form.Show();
    int pressed = 0;
    form.btn_ok.OnClick = [&] { ++pressed; };
    tests::press(form, "Enter");
    EXPECT_EQ(pressed, 1);
    form.btn_ok.Default = false;
    form.Second.SetFocus();
    tests::press(form, "Enter");
    EXPECT_TRUE(form.First.focused());
}

TEST_F(Form, a_disabled_action_leaves_its_key_alone) {
    int saved = 0;
    form.Act_Save.OnExecute = [&] { ++saved; };
    form.Act_Save.Enabled = false;
    form.Show();
    tests::press(form, "F2");
    EXPECT_EQ(saved, 0);
}

TEST_F(Form, components_are_found_without_regard_to_case) {
    EXPECT_EQ(form.FindComponent("BTN_OK"), &form.btn_ok);
    EXPECT_EQ(form.FindComponent("none"), nullptr);
}

TEST_F(Form, a_modal_form_ends_with_the_result_of_its_button) {
    form.btn_ok.ModalResult = mrOk;
    desk.ui.inside.push_back([&](TForm&) {
        EXPECT_EQ(the_host().active, &form);
        form.btn_ok.Click();
    });
    EXPECT_EQ(form.ShowModal(), mrOk);
    EXPECT_TRUE(the_host().modal.empty());
    EXPECT_FALSE(form.Shown());
    EXPECT_EQ(form.ShowModal(), mrCancel); // closed without an answer
}

TEST_F(Form, unsaved_work_is_asked_about_before_closing) {
    form.FreeOnClose = false;
    form.Show();
    form.dirty = true;
    form.Close();
    EXPECT_TRUE(form.Shown());
    EXPECT_EQ(desk.ui.questions.size(), 1U);
    desk.ui.answers.push_back(true);
    form.Close();
    EXPECT_FALSE(form.Shown());
}

TEST_F(Form, a_modeless_form_goes_when_its_event_has_returned) {
    bool gone = false;
    auto* child = new TSheet(&form);
    child->gone = &gone;
    child->Show();
    enter_event([&] {
        child->Close();
        EXPECT_FALSE(gone); // still on the call stack
        EXPECT_EQ(child->Caption.get(), "单据");
    });
    EXPECT_TRUE(gone);
    EXPECT_EQ(desk.ui.forgotten.size(), 1U);
    EXPECT_TRUE(the_host().forms.empty());
}

TEST_F(Form, a_form_takes_the_forms_opened_from_it_along) {
    bool gone = false;
    {
        TSheet owner;
        auto* child = new TSheet(&owner);
        child->gone = &gone;
        child->Show();
    }
    EXPECT_TRUE(gone);
    EXPECT_TRUE(the_host().forms.empty());
}

TEST_F(Form, what_was_opened_from_a_form_is_asked_before_it_closes) {
    form.FreeOnClose = false;
    form.Show();
    auto* child = new TSheet(&form);
    child->Show();
    child->dirty = true;
    form.Close();
    EXPECT_TRUE(form.Shown());
    EXPECT_EQ(the_host().active, child);
}

TEST_F(Form, closing_leads_back_to_the_form_it_was_opened_from) {
    form.FreeOnClose = false;
    form.Show();
    auto* child = new TSheet(&form);
    child->Show();
    auto* over_it = new TSheet(child);
    over_it->Show();
    TSheet opened_last;
    opened_last.Show();
    over_it->Activate();
    enter_event([&] { over_it->Close(); });
    EXPECT_EQ(the_host().active, child);
    enter_event([&] { child->Close(); });
    EXPECT_EQ(the_host().active, &form);
    enter_event([&] { form.Close(); });
    EXPECT_EQ(the_host().active, &opened_last);
}

TEST_F(Form, a_form_that_goes_with_the_one_opened_from_it_asks_about_unsaved_work_once) {
    form.FreeOnClose = false;
    form.Show();
    auto* child = new TSheet(&form);
    child->Show();
    child->dirty = true;
    child->OnClose = [this] { form.Close(); };
    desk.ui.answers.push_back(true);
    enter_event([&] { child->Close(); });
    EXPECT_EQ(desk.ui.questions.size(), 1U);
    EXPECT_TRUE(the_host().forms.empty());
}

TEST_F(Form, instances_are_counted_per_class) {
    form.Show();
    TSheet other;
    other.Show();
    EXPECT_EQ(other.InstanceNumber(), form.InstanceNumber() + 1);
    EXPECT_EQ(other.FormName(), "Sheet");
}

TEST_F(Form, whatever_goes_wrong_in_an_event_ends_in_a_message) {
    EXPECT_FALSE(enter_event([] { throw DataError("数据库忙，请稍后再试。", "busy"); }));
    EXPECT_EQ(desk.ui.last_message(), "数据库忙，请稍后再试。");
    EXPECT_FALSE(enter_event([] { throw std::runtime_error("broken"); }));
    EXPECT_EQ(desk.ui.last_message(), "操作没有完成，什么都没有保存。原因：broken");
    const std::size_t told = desk.ui.messages.size();
    EXPECT_FALSE(enter_event([] { Abort(); }));
    EXPECT_EQ(desk.ui.messages.size(), told);
    EXPECT_TRUE(enter_event([] {}));
}

} // namespace host
