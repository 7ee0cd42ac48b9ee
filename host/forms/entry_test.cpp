// Document lists and the entry of one document.
#include "host/forms/Base_Entry_Head.h"

#include "host/forms/Base_Entry_Body.h"
#include "host/forms/event_gate.h"
#include "host/values/errors.h"
#include "host/values/sql_text.h"
#include "tests/support/fake_interface.h"

namespace host {

namespace {

class TF901_1 : public Tfrm_Base_Entry_Body {
public:
    explicit TF901_1(TForm* parent) : Tfrm_Base_Entry_Body(parent) {
        Caption = "单据";
        AdoQry_Main.DefineField("ZY", FieldType::Text, 100);
        AdoQry_Main.DefineField("J", FieldType::Amount);
        AddColumn("ZY", "摘要");
        AddAmountColumn("J", "金额");
        layout = Rows({ToolBar({&Act_Save}), Field("", NO), Rest(DBGridEh)});
    }
    const char* ClassName() const override { return "TF901_1"; }
    TEdit NO{this, "NO", "号"};

    void OpenNoid(const std::string& key) override {
        opensql(AdoQry_Main, FunctionCode, "SELECT lines " + quoted(key));
        NO.Text = key;
    }
    void RefreshData() override {
        Tfrm_Base_Entry_Body::RefreshData();
        if (Mode == "Add") NO.Text = "new";
        if (Mode == "CopyAdd") NO.Text = "copy";
    }
    bool AllCheck() override {
        if (!Tfrm_Base_Entry_Body::AllCheck()) return false;
        if (AdoQry_Main.RecordCount() < 1) {
            DISPINFO("没有行!", 5);
            Abort();
        }
        return true;
    }
    void SaveData() override {
        if (ExecSql(FunctionCode, NO.Text, Mode, "save " + NO.Text.get()) == "Y") Saved(NO.Text);
    }
};

class TF901 : public TFrm_Base_Entry_Head {
public:
    TF901() : TFrm_Base_Entry_Head(nullptr) {
        Caption = "清单";
        FreeOnClose = false;
        AddColumn("NOID", "号");
        Settings = {.table = "D9",
                    .key_field = "NOID",
                    .lookup_field = "",
                    .amount_fields = "J",
                    .head_query = "SELECT heads FROM D9",
                    .head_order = "",
                    .line_query = "SELECT lines %s",
                    .delete_statement = "delete from D9 Where NOID=%S",
                    .period_field = "PZQJ"};
    }
    const char* ClassName() const override { return "TF901"; }
    TF901_1 body{this};

protected:
    Tfrm_Base_Entry_Body* EntryForm() override { return &body; }
};

class Entry : public ::testing::Test {
protected:
    using Heads = std::vector<std::vector<std::string>>;
    Entry() {
        heads({{"k1", "2024-03", "0", "0"},
               {"k2", "2024-03", "1", "0"},
               {"k3", "2024-02", "0", "0"},
               {"k4", "2024-03", "1", "1"}});
        desk.data.answer("SELECT PARAM FROM D6600 WHERE ID=2", {"PARAM text"}, {{"2024-03"}});
        desk.data.answer("SELECT lines", {"ZY text", "J money"}, {{"付款", "5.00"}});
        desk.data.answer("SELECT NAME,VALUE FROM SYS_SETTING", {"NAME text", "VALUE text"}, {});
        desk.data.answer("SELECT VALUE FROM SYS_SETTING WHERE NAME='mode'", {"VALUE text"}, {});
        Trecord pick;
        pick.set_code(901);
        list.InitForm(pick);
    }
    // Answers the list's query with all rows and the query for one head with its row.
    void heads(const Heads& rows) {
        listed_ = rows;
        static const std::vector<std::string> columns = {"NOID text", "PZQJ text", "T int",
                                                         "D bit"};
        for (const auto& row : rows)
            desk.data.answer("SELECT heads FROM D9 WHERE D9.NOID='" + row[0] + "'", columns, {row});
        desk.data.answer("SELECT heads FROM D9", columns, rows);
    }
    void gone(const std::string& key) {
        desk.data.answer("SELECT heads FROM D9 WHERE D9.NOID='" + key + "'",
                         {"NOID text", "PZQJ text", "T int", "D bit"}, {});
        heads(listed_); // the list's own answer stands behind the one for a single head
    }
    static void run(TAction& action) {
        enter_event([&] { action.Execute(); });
    }
    std::size_t executed() const { return desk.data.executed().size(); }
    tests::Desk desk;
    TF901 list;

private:
    Heads listed_;
};

} // namespace

TEST_F(Entry, the_list_shows_its_documents_and_the_lines_of_the_current_one_at_once) {
    EXPECT_EQ(list.AdoQry_Main.RecordCount(), 4);
    EXPECT_EQ(list.AdoQry_Line.FieldByName("ZY").AsText(), "付款");
    list.AdoQry_Main.GotoRow(2);
    EXPECT_EQ(desk.data.queries().back(), "SELECT lines 'k3'");
    const std::size_t before = desk.data.queries().size();
    tests::press(list, "F5"); // the heads and the lines of the current one, once each
    EXPECT_EQ(desk.data.queries().size(), before + 2);
    EXPECT_EQ(desk.data.queries().back(), "SELECT lines 'k3'");
}

TEST_F(Entry, a_saved_document_joins_the_list_and_the_form_is_ready_for_the_next) {
    heads({{"new", "2024-03", "0", "0"}});
    tests::press(list, "Insert");
    EXPECT_EQ(list.body.Mode, "Add");
    EXPECT_FALSE(list.body.Act_Save.Enabled);
    list.body.DBGridEh.SetFocus();
    tests::type(list.body, "收款");
    tests::press(list.body, "F2"); // takes what is still being typed
    EXPECT_EQ(desk.data.executed().back().log.operation, "Add");
    EXPECT_EQ(list.AdoQry_Main.RecordCount(), 5);
    EXPECT_EQ(list.AdoQry_Main.FieldByName("NOID").AsText(), "new");
    EXPECT_TRUE(list.body.Shown());
    EXPECT_EQ(list.body.Mode, "Add");
    EXPECT_TRUE(list.body.AdoQry_Main.IsEmpty());
    EXPECT_FALSE(list.body.Act_Save.Enabled);
}

TEST_F(Entry, a_changed_document_is_saved_and_its_form_closes) {
    run(list.Act_Modify);
    EXPECT_EQ(list.body.Mode, "Edit");
    EXPECT_EQ(list.body.Key, "k1");
    list.body.DBGridEh.SetFocus();
    list.body.DBGridEh.enter_cell("改");
    EXPECT_TRUE(list.body.Dirty());
    tests::press(list.body, "F2");
    EXPECT_EQ(desk.data.executed().back().log.operation, "Edit");
    EXPECT_FALSE(list.body.Shown());
    EXPECT_EQ(list.AdoQry_Main.RecordCount(), 4);
}

TEST_F(Entry, a_refused_save_leaves_the_form_as_it_is) {
    run(list.Act_Modify);
    list.body.NO.enter_text("k9");
    desk.data.refuse_next_batch("凭证号重复。");
    tests::press(list.body, "F2");
    EXPECT_TRUE(list.body.Shown());
    EXPECT_TRUE(list.body.Dirty());
    EXPECT_EQ(list.body.NO.Text.get(), "k9");
    list.body.AdoQry_Main.Delete();
    tests::press(list.body, "F2");
    EXPECT_EQ(desk.ui.last_message(), "没有行!");
    EXPECT_EQ(executed(), 0U);
}

TEST_F(Entry, a_copy_is_a_new_document_with_the_lines_of_the_old) {
    tests::press(list, "Ctrl+Insert");
    EXPECT_EQ(list.body.Mode, "CopyAdd");
    EXPECT_EQ(list.body.Key, "");
    EXPECT_EQ(list.body.NO.Text.get(), "copy");
    EXPECT_EQ(list.body.AdoQry_Main.RecordCount(), 1);
    EXPECT_FALSE(list.body.Dirty());
}

TEST_F(Entry, what_is_audited_posted_or_of_another_period_is_only_shown_and_never_deleted) {
    const std::pair<int, const char*> table[] = {
        {1, "已审核"}, {2, "属于会计期间 2024-02"}, {3, "已登帐"}};
    for (const auto& [row, reason] : table) {
        list.AdoQry_Main.GotoRow(row);
        run(list.Act_Modify);
        EXPECT_EQ(list.body.Mode, "ReadOnly");
        EXPECT_NE(desk.ui.last_message().find(reason), std::string::npos) << reason;
        EXPECT_NE(list.body.LockReason.Caption->find(reason), std::string::npos);
        EXPECT_TRUE(list.body.NO.ReadOnly);
        EXPECT_FALSE(list.body.DBGridEh.can_edit(0));
        EXPECT_FALSE(list.body.Act_AddLine.usable());
        desk.ui.answers = {true};
        run(list.Act_Delete);
        EXPECT_NE(desk.ui.last_message().find(reason), std::string::npos) << reason;
    }
    EXPECT_EQ(executed(), 0U);
    list.AdoQry_Main.GotoRow(0);
    run(list.Act_Modify);
    EXPECT_EQ(list.body.LockReason.Caption.get(), "");
    EXPECT_FALSE(list.body.NO.ReadOnly); // free again
    EXPECT_TRUE(list.body.DBGridEh.can_edit(0));
}

TEST_F(Entry, strict_books_point_to_the_red_voucher_where_something_is_posted) {
    desk.data.answer("SELECT VALUE FROM SYS_SETTING WHERE NAME='mode'", {"VALUE text"},
                     {{"strict"}});
    list.AdoQry_Main.GotoRow(3);
    for (TAction* action : {&list.Act_Modify, &list.Act_Delete}) {
        run(*action);
        EXPECT_EQ(desk.ui.last_message(),
                  "“k4”已登帐，本帐套按严格方式管理，不能修改或删除；如需更正，请用红字凭证!");
    }
    list.Act_UnAudit.Visible = true;
    run(list.Act_UnAudit);
    EXPECT_EQ(desk.ui.last_message(), "“k4”已登帐，不能反审核；如需更正，请用红字凭证!");
    EXPECT_EQ(executed(), 0U);
}

TEST_F(Entry, looking_by_double_click_says_nothing) {
    list.AdoQry_Main.GotoRow(1);
    list.DBGridEh.double_click();
    EXPECT_EQ(list.body.Mode, "ReadOnly");
    EXPECT_TRUE(desk.ui.messages.empty());
}

TEST_F(Entry, a_delete_asks_by_name_and_then_takes_the_row) {
    run(list.Act_Delete);
    EXPECT_EQ(desk.ui.questions.back(), "确定要删除“k1”吗？");
    EXPECT_EQ(executed(), 0U);
    desk.ui.answers = {true};
    run(list.Act_Delete);
    EXPECT_EQ(desk.data.executed().back().batch, "delete from D9 Where NOID='k1'");
    EXPECT_EQ(desk.data.executed().back().log.operation, "Delete");
    EXPECT_EQ(list.AdoQry_Main.RecordCount(), 3);
}

TEST_F(Entry, what_somebody_else_did_while_the_question_stood_is_seen_before_deleting) {
    desk.ui.answers = {true, true};
    desk.ui.while_asked = [this] { heads({{"k1", "2024-03", "1", "0"}}); };
    run(list.Act_Delete);
    EXPECT_NE(desk.ui.last_message().find("已审核"), std::string::npos) << desk.ui.last_message();
    heads({{"k1", "2024-03", "0", "0"}});
    desk.ui.while_asked = [this] {
        heads({});
        gone("k1");
    };
    run(list.Act_Delete);
    EXPECT_EQ(desk.ui.last_message(), "“k1”已被他人删除!");
    EXPECT_EQ(executed(), 0U);
}

TEST_F(Entry, what_somebody_else_changed_meanwhile_is_seen_before_acting) {
    heads({{"k1", "2024-03", "1", "0"}, {"k2", "2024-03", "1", "0"}});
    run(list.Act_Delete);
    EXPECT_NE(desk.ui.last_message().find("已审核"), std::string::npos);
    heads({{"k2", "2024-03", "1", "0"}});
    gone("k1");
    run(list.Act_Modify);
    EXPECT_EQ(desk.ui.last_message(), "“k1”已被他人删除!");
    EXPECT_EQ(list.AdoQry_Main.RecordCount(), 3);
    EXPECT_FALSE(list.body.Shown());
}

TEST_F(Entry, unsaved_work_is_asked_about_on_leaving) {
    tests::press(list, "Insert");
    list.body.NO.enter_text("typed");
    tests::press(list.body, "Esc");
    EXPECT_TRUE(list.body.Shown());
    desk.ui.answers = {true};
    tests::press(list.body, "Esc");
    EXPECT_FALSE(list.body.Shown());
}

TEST_F(Entry, an_empty_line_is_no_unsaved_work_and_a_deleted_one_is) {
    run(list.Act_Modify);
    list.body.Act_AddLine.Execute();
    EXPECT_FALSE(list.body.Dirty());
    list.body.AdoQry_Main.First();
    list.body.Act_DeleteLine.Execute();
    EXPECT_TRUE(list.body.Dirty());
}

TEST_F(Entry, the_audit_writes_its_batch_and_reads_the_list_again) {
    list.Act_Audit.Visible = true;
    list.DBGridEh.mark_row(0, true);
    list.DBGridEh.mark_row(2, true);
    heads({{"k1", "2024-03", "1", "0"}, {"k2", "2024-03", "1", "0"}});
    tests::press(list, "F9");
    ASSERT_EQ(executed(), 1U);
    EXPECT_EQ(desk.data.executed().back().log.operation, "Audit");
    EXPECT_EQ(desk.data.executed().back().log.key, "k1,k3");
    EXPECT_EQ(list.AdoQry_Main.FieldByName("T").AsInteger(), 1);
    tests::press(list, "F9");
    EXPECT_EQ(desk.ui.last_message(), "所选单据都已审核，无需再审核!");
}

TEST_F(Entry, rights_are_asked_for_each_action) {
    the_host().may = [](const Right& right) { return right.action == "open"; };
    for (TAction* action : {&list.Act_Add, &list.Act_CopyAdd, &list.Act_Modify, &list.Act_Delete,
                            &list.Act_Export}) {
        EXPECT_FALSE(action->Execute());
        EXPECT_NE(desk.ui.last_message().find("权限"), std::string::npos);
    }
    list.DBGridEh.double_click(); // looking is allowed
    EXPECT_EQ(list.body.Mode, "ReadOnly");
}

// The right may have been there when the document was opened and the form reached some other way:
// what counts is asked when it is saved.
TEST_F(Entry, saving_a_new_document_needs_to_add_and_a_changed_one_to_change) {
    // opened to     lacks     told
    const struct {
        bool add;
        const char* lacks;
        const char* told;
    } attempts[] = {
        {true, "add", "您没有新增“单据”的权限，请与系统管理员联系。"},
        {false, "change", "您没有修改“单据”的权限，请与系统管理员联系。"},
    };
    for (const auto& attempt : attempts) {
        the_host().may = [](const Right&) { return true; };
        desk.ui.answers = {true}; // what the attempt before typed may go
        run(attempt.add ? list.Act_Add : list.Act_Modify);
        list.body.DBGridEh.SelectField("ZY");
        list.body.DBGridEh.enter_cell("收款");
        the_host().may = [&](const Right& right) { return right.action != attempt.lacks; };
        tests::press(list.body, "F2");
        EXPECT_EQ(desk.ui.last_message(), attempt.told);
        EXPECT_EQ(executed(), 0u);
    }
}

} // namespace host
