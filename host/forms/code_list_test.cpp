// Code lists and trees with their dialogs.
#include "host/forms/Base_Detail.h"
#include "host/forms/Base_Inner.h"
#include "host/forms/Base_Link.h"
#include "host/forms/Base_Node.h"
#include "host/forms/Base_Node_d.h"
#include "host/forms/Base_Outer.h"
#include "host/ports/host.h"
#include "tests/support/fake_interface.h"

namespace host {

namespace {

class TF902_1 : public TFrm_Base_Detail {
public:
    explicit TF902_1(TForm* parent) : TFrm_Base_Detail(parent) {
        layout = Rows({Field("", Word), Field("", Title), Buttons({&btn_ok, &btn_Cancel})});
        Word.OnExit = [this] {
            if (!leaving_by_cancel()) CheckBlank(Word, "凭证字");
        };
    }
    const char* ClassName() const override { return "TF902_1"; }
    TEdit Word{this, "Word", "凭证字"}, Title{this, "Title", "标题"};
    void RefreshData() override {
        LockedField = Mode == "Edit" ? &Word : nullptr;
        FirstField = Mode == "Edit" ? &Title : &Word;
        Word.Text = Mode == "Add" ? "" : List->FieldByName("PZZ").AsText();
        Title.Text = Mode == "Add" ? "" : List->FieldByName("PZZ_PRINT").AsText();
        TFrm_Base_Detail::RefreshData();
    }
    void SaveData() override {
        saved_ = ExecSql(FunctionCode, Word.Text, Mode, "save " + Word.Text.get()) == "Y";
        if (!saved_) return;
        if (Mode == "Edit") List->Edit(); else List->Append();
        List->FieldByName("PZZ").SetValue(Word.Text.get());
        List->FieldByName("PZZ_PRINT").SetValue(Title.Text.get());
    }
};

class TF902 : public TFrm_Base_Outer {
public:
    TF902() : TFrm_Base_Outer(nullptr) {
        FreeOnClose = false;
        AddColumn("PZZ", "凭证字");
        AddColumn("PZZ_PRINT", "标题");
        SqlText = "select * From d6802";
        DeleteStatement = "delete from d6802 Where pzz=%S";
        KeyField = "pzz";
        Uses = {{"SELECT COUNT(*) AS I FROM D6601 WHERE PZZ=%S", "已有凭证使用该凭证字"}};
    }
    const char* ClassName() const override { return "TF902"; }
    TF902_1 dialog{this};

protected:
    TFrm_Base_Detail* Dialog() override { return &dialog; }
};

class CodeList : public ::testing::Test {
protected:
    CodeList() {
        desk.data.answer("select * From d6802", {"PZZ text", "PZZ_PRINT text"},
                         {{"记", "记帐凭证"}, {"收", "收款凭证"}});
        desk.data.answer("SELECT COUNT(*)", {"I int"}, {{"0"}});
        Trecord pick;
        pick.set_code(902);
        list.InitForm(pick);
    }
    tests::Desk desk;
    TF902 list;
};

} // namespace

TEST_F(CodeList, a_new_row_is_shown_without_reading_the_list_again) {
    desk.ui.inside.push_back([&](TForm& form) {
        EXPECT_TRUE(list.dialog.Word.focused());
        tests::type(form, "付");
        tests::press(form, "Enter");
        tests::type(form, "付款凭证");
        tests::press(form, "F2");
    });
    tests::press(list, "Insert");
    EXPECT_EQ(list.AdoQry_Main.RecordCount(), 3);
    EXPECT_EQ(list.AdoQry_Main.FieldByName("PZZ_PRINT").AsText(), "付款凭证");
    EXPECT_FALSE(list.AdoQry_Main.Modified());
    EXPECT_EQ(desk.data.executed().back().log.operation, "Add");
}

TEST_F(CodeList, a_field_never_entered_is_checked_too) {
    desk.ui.inside.push_back([&](TForm& form) {
        list.dialog.Title.SetFocus(); // refused: the word is blank
        tests::press(form, "F2");
        EXPECT_EQ(form.ModalResult.get(), 0);
    });
    tests::press(list, "Insert");
    EXPECT_EQ(desk.ui.messages.front(), "凭证字不能为空，请录入!");
    EXPECT_TRUE(desk.data.executed().empty());
}

TEST_F(CodeList, enter_goes_from_the_search_to_the_rows_and_there_changes_one) {
    EXPECT_EQ(list.Act_Modify.ShortCut, "Enter") << "as the tool bar says";
    list.SearchBox.SetFocus();
    tests::type(list, "s");
    tests::press(list, "Enter");
    EXPECT_TRUE(list.DBGridEh.focused());
    bool changed = false;
    desk.ui.inside.push_back([&](TForm& form) {
        changed = list.dialog.Word.Text.get() == "收";
        tests::press(form, "Esc");
    });
    tests::press(list, "Enter");
    EXPECT_TRUE(changed);
}

TEST_F(CodeList, changing_locks_the_key_and_esc_asks_only_about_changes) {
    desk.ui.inside.push_back([&](TForm& form) {
        EXPECT_TRUE(list.dialog.Word.ReadOnly);
        EXPECT_TRUE(list.dialog.Title.focused());
        tests::press(form, "Esc");
        EXPECT_EQ(form.ModalResult.get(), mrCancel);
    });
    list.DBGridEh.double_click();
    EXPECT_TRUE(desk.ui.questions.empty());
    desk.ui.inside.push_back([&](TForm& form) {
        tests::type(form, "x");
        tests::press(form, "Esc");
        EXPECT_EQ(form.ModalResult.get(), 0);
        desk.ui.answers = {true};
        tests::press(form, "Esc");
        EXPECT_EQ(form.ModalResult.get(), mrCancel);
    });
    list.DBGridEh.double_click();
    desk.ui.inside.push_back([&](TForm& form) {
        tests::type(form, "x");
        list.dialog.btn_Cancel.Click();
        EXPECT_EQ(form.ModalResult.get(), mrCancel);
    });
    list.DBGridEh.double_click();
    EXPECT_EQ(desk.ui.questions.size(), 2U); // both by Esc; the button asks nothing
    desk.ui.inside.push_back([&](TForm&) { EXPECT_FALSE(list.dialog.Word.ReadOnly); });
    tests::press(list, "Insert");
}

TEST_F(CodeList, a_refused_save_keeps_the_dialog_and_the_list) {
    desk.ui.inside.push_back([&](TForm& form) {
        tests::type(form, "新标题");
        desk.data.refuse_next_batch("只读。");
        tests::press(form, "F2");
        EXPECT_EQ(form.ModalResult.get(), 0);
        EXPECT_EQ(list.dialog.Title.Text.get(), "新标题");
    });
    list.Act_Modify.Execute();
    EXPECT_EQ(list.AdoQry_Main.FieldByName("PZZ_PRINT").AsText(), "记帐凭证");
}

TEST_F(CodeList, a_dialog_saves_only_with_the_right_of_its_mode) {
    // mode     lacks     saved
    const struct {
        const char* mode;
        const char* lacks;
        bool saved;
    } attempts[] = {{"Add", "add", false},      {"CopyAdd", "add", false},
                    {"Edit", "change", false},  {"Edit", "add", true},
                    {"Add", "change", true}};
    for (const auto& attempt : attempts) {
        const std::size_t before = desk.data.executed().size();
        the_host().may = [&](const Right& right) { return right.action != attempt.lacks; };
        desk.ui.inside.push_back([&](TForm& form) {
            list.dialog.Word.Text = "付";
            tests::press(form, "F2");
            form.ModalResult = mrCancel;
        });
        list.dialog.Open(attempt.mode, "记", &list.AdoQry_Main);
        EXPECT_EQ(desk.data.executed().size() > before, attempt.saved) << attempt.mode;
    }
}

TEST_F(CodeList, what_is_in_use_stays) {
    desk.data.answer("SELECT COUNT(*)", {"I int"}, {{"3"}});
    desk.ui.answers = {true};
    tests::press(list, "Delete");
    EXPECT_EQ(desk.ui.last_message(), "“记”不能删除：已有凭证使用该凭证字!");
    EXPECT_TRUE(desk.data.executed().empty());
    desk.data.answer("SELECT COUNT(*)", {"I int"}, {{"0"}});
    tests::press(list, "Delete");
    EXPECT_EQ(desk.data.executed().back().batch, "delete from d6802 Where pzz='记'");
    EXPECT_EQ(list.AdoQry_Main.RecordCount(), 1);
}

TEST_F(CodeList, the_search_box_narrows_by_text_and_by_ear) {
    list.SearchBox.enter_text("收款");
    EXPECT_EQ(list.AdoQry_Main.RecordCount(), 1);
    list.SearchBox.enter_text("jz"); // 记帐
    EXPECT_EQ(list.AdoQry_Main.FieldByName("PZZ").AsText(), "记");
    list.SearchBox.enter_text("");
    EXPECT_EQ(list.AdoQry_Main.RecordCount(), 2);
}

namespace {

class TF903 : public TFrm_Base_Node {
public:
    TF903() : TFrm_Base_Node(nullptr) {
        FreeOnClose = false;
        Caption = "会计科目";
        ListQuery = "SELECT KM_ID,KM_NAME, OID  FROM D6801";
        KeyField = "KM_ID";
        NameField = "KM_NAME";
        ParentField = "oid";
        RootParent = "Z";
        DeleteStatement = "delete from D6801 Where km_ID=%S";
        Uses = {{"SELECT COUNT(*) AS I FROM D6601A WHERE KM_ID=%S", "已有凭证使用该科目"}};
    }
    const char* ClassName() const override { return "TF903"; }
};

class AccountTree : public ::testing::Test {
protected:
    AccountTree() {
        desk.data.answer("SELECT KM_ID", {"KM_ID text", "KM_NAME text", "OID text"},
                         {{"100201", "工行", "1002"},
                          {"1001", "现金", "Z"},
                          {"1002", "银行存款", "Z"},
                          {"9999", "孤儿", "8888"},
                          {"7001", "环", "7002"},
                          {"7002", "环", "7001"}});
        desk.data.answer("SELECT COUNT(*)", {"I int"}, {{"0"}});
        Trecord pick;
        pick.set_code(903);
        form.InitForm(pick);
    }
    TTreeNode* node(const char* text) { return form.TreeView1.find(text); }
    tests::Desk desk;
    TF903 form;
};

} // namespace

TEST_F(AccountTree, children_stand_below_their_parent_and_orphans_at_the_top) {
    EXPECT_EQ(node("100201 工行")->Parent, node("1002 银行存款"));
    EXPECT_EQ(node("1001 现金")->Parent, nullptr);
    ASSERT_NE(node("9999 孤儿"), nullptr);
    EXPECT_EQ(node("9999 孤儿")->Parent, nullptr);
}

TEST_F(AccountTree, a_node_with_children_or_in_use_stays) {
    desk.ui.answers = {true, true};
    form.TreeView1.Select(node("1002 银行存款"));
    tests::press(form, "Delete");
    EXPECT_EQ(desk.ui.last_message(), "“1002 银行存款”下面还有下级，不能删除；请先删除它的下级!");
    desk.data.answer("SELECT COUNT(*)", {"I int"}, {{"1"}});
    form.TreeView1.Select(node("100201 工行"));
    tests::press(form, "Delete");
    EXPECT_EQ(desk.ui.last_message(), "“100201 工行”不能删除：已有凭证使用该科目!");
    EXPECT_TRUE(desk.data.executed().empty());
    desk.data.answer("SELECT COUNT(*)", {"I int"}, {{"0"}});
    tests::press(form, "Delete");
    EXPECT_EQ(desk.data.executed().back().batch, "delete from D6801 Where km_ID='100201'");
    EXPECT_EQ(node("100201 工行"), nullptr);
    EXPECT_EQ(form.TreeView1.value_text(), "1002 银行存款");
}

TEST_F(AccountTree, refreshing_keeps_the_selected_account) {
    form.TreeView1.Select(node("100201 工行"));
    tests::press(form, "F5");
    EXPECT_EQ(form.TreeView1.value_text(), "100201 工行");
}

TEST_F(AccountTree, the_search_box_goes_from_match_to_match) {
    form.TreeView1.Select(node("1001 现金"));
    form.SearchBox.SetFocus();
    tests::type(form, "10");
    EXPECT_EQ(form.TreeView1.value_text(), "1001 现金");
    tests::press(form, "Enter");
    EXPECT_EQ(form.TreeView1.value_text(), "1002 银行存款");
    form.SearchBox.enter_text("gh");
    EXPECT_EQ(form.TreeView1.value_text(), "100201 工行");
}

namespace {

class TF904 : public TFrm_Base_Inner {
public:
    TF904() : TFrm_Base_Inner(nullptr) {
        FreeOnClose = false;
        AddColumn("KM_ID", "科目").ReadOnly = true;
        AddAmountColumn("BEGIN1", "期初");
        SqlText = "SELECT KM_ID,BEGIN1 FROM D6801";
        TableName = "D6801";
        KeyField = "KM_ID";
        SumFields = "BEGIN1";
    }
    const char* ClassName() const override { return "TF904"; }
};

class Picker : public TBase_Link {
public:
    Picker() : TBase_Link(nullptr) {
        AdoQry_Main.DefineField("KM_ID", FieldType::Text);
        AdoQry_Main.Open();
    }
    const char* ClassName() const override { return "TFLINK_TEST"; }
};

} // namespace

TEST(InPlace, what_was_typed_is_saved_as_a_whole_and_summed_meanwhile) {
    tests::Desk desk;
    desk.data.answer("SELECT KM_ID", {"KM_ID text", "BEGIN1 money"},
                     {{"1001", "10"}, {"1002", "20"}});
    TF904 form;
    Trecord pick;
    pick.set_code(904);
    form.InitForm(pick);
    form.DBGridEh.SelectField("BEGIN1");
    form.DBGridEh.enter_cell("15.5");
    EXPECT_EQ(form.DBGridEh.footer_text(1), "35.50");
    EXPECT_TRUE(form.Dirty());
    tests::press(form, "F2");
    EXPECT_EQ(desk.data.executed().back().batch,
              "UPDATE D6801 SET BEGIN1=15.5 WHERE KM_ID='1001';");
    EXPECT_FALSE(form.Dirty());
    form.DBGridEh.enter_cell("1");
    tests::press(form, "F5"); // answered no: the work stays
    EXPECT_EQ(form.DBGridEh.cell_text(0, 1), "1.00");
}

TEST(InPlace, what_is_written_asks_for_its_right_however_it_came_into_the_grid) {
    // did               lacks     sent
    const struct {
        const char* did;
        const char* lacks;
        bool sent;
    } attempts[] = {{"insert", "add", false},    {"insert", "delete", true},
                    {"change", "change", false}, {"change", "add", true},
                    {"delete", "delete", false}, {"delete", "add", true}};
    for (const auto& attempt : attempts) {
        tests::Desk desk;
        desk.data.answer("SELECT KM_ID", {"KM_ID text", "BEGIN1 money"}, {{"1001", "10"}});
        TF904 form;
        Trecord pick;
        pick.set_code(904);
        form.InitForm(pick);
        const std::string did = attempt.did;
        if (did == "insert") {
            form.AdoQry_Main.Append(); // as Enter in the last cell does
            form.AdoQry_Main.FieldByName("KM_ID").SetValue(std::string("1002"));
        }
        if (did == "delete") form.AdoQry_Main.Delete();
        if (did == "change") form.DBGridEh.SelectField("BEGIN1"), form.DBGridEh.enter_cell("7");
        the_host().may = [&](const Right& right) { return right.action != attempt.lacks; };
        tests::press(form, "F2");
        EXPECT_EQ(!desk.data.executed().empty(), attempt.sent) << did << " " << attempt.lacks;
        if (!attempt.sent) {
            EXPECT_NE(desk.ui.last_message().find("权限"), std::string::npos);
            EXPECT_TRUE(form.Dirty()); // nothing typed is lost
        }
    }
}

TEST(InPlace, whoever_may_only_look_cannot_type) {
    tests::Desk desk;
    desk.data.answer("SELECT KM_ID", {"KM_ID text", "BEGIN1 money"}, {{"1001", "10"}});
    the_host().may = [](const Right& right) { return right.action == "open"; };
    TF904 form;
    Trecord pick;
    pick.set_code(904);
    form.InitForm(pick);
    EXPECT_FALSE(form.DBGridEh.can_edit(1));
}

TEST(Picker, arrows_choose_while_typing_and_enter_takes_the_row) {
    tests::Desk desk;
    Picker picker;
    desk.ui.inside.push_back([&](TForm& form) {
        tests::press(form, "Enter");
        EXPECT_EQ(form.ModalResult.get(), 0); // nothing found, nothing taken
        for (const char* code : {"1001", "1002"}) {
            picker.AdoQry_Main.Append();
            picker.AdoQry_Main.FieldByName("KM_ID").SetValue(std::string(code));
            picker.AdoQry_Main.Post();
        }
        picker.AdoQry_Main.First();
        picker.wl_id.SetFocus();
        tests::press(form, "Down");
        tests::press(form, "Down");
        tests::press(form, "Enter");
    });
    EXPECT_EQ(picker.ShowModal(), mrOk);
    EXPECT_EQ(picker.AdoQry_Main.FieldByName("KM_ID").AsText(), "1002");
}

} // namespace host
