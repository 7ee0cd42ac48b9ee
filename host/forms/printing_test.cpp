// Printing from the base classes: what each hands over, and what it refuses.
#include <gtest/gtest.h>

#include "host/forms/Base_Entry_Body.h"
#include "host/forms/Base_Node.h"
#include "host/forms/Base_Qry.h"
#include "host/forms/Sys_Report.h"
#include "host/printing/paper.h"
#include "host/printing/sheet.h"
#include "host/values/errors.h"
#include "tests/support/fake_interface.h"

namespace host {

namespace {

struct Printing : ::testing::Test {
    Printing() { desk.ui.prints = true; }
    tests::Desk desk;
};

class TReport : public TFrm_Base_Qry {
public:
    TReport() : TFrm_Base_Qry(nullptr) {
        Caption = "汇总表";
        ConditionLabel.Caption = "期间 2024-03";
        AddColumn("KM_ID", "科目", 12);
        AdoQry_Main.DefineField("KM_ID", FieldType::Text);
        AdoQry_Main.Open();
    }
    const char* ClassName() const override { return "TReport"; }
    void add(const char* code) {
        AdoQry_Main.Append();
        AdoQry_Main.FieldByName("KM_ID").SetValue(std::string(code));
        AdoQry_Main.Post();
    }
};

class TDocument : public Tfrm_Base_Entry_Body {
public:
    TDocument() : Tfrm_Base_Entry_Body(nullptr) {
        Caption = "收款单";
        AddColumn("ZY", "摘要", 20);
        AdoQry_Main.DefineField("ZY", FieldType::Text);
    }
    const char* ClassName() const override { return "TDocument"; }
    TEdit NoteEdit{this, "NOTE", "备  注"};
    TCheckBox Flag{this, "T", "标记"};
};

} // namespace

TEST_F(Printing, a_report_prints_its_rows_under_its_conditions) {
    TReport report;
    report.add("1001");
    const Sheet sheet = report.MakeSheet();
    EXPECT_EQ(sheet.title, "汇总表");
    EXPECT_EQ(sheet.conditions, std::vector<std::string>{"期间 2024-03"});
    report.Act_Print.Execute();
    report.Act_Preview.Execute();
    EXPECT_EQ(desk.ui.printed, (std::vector<std::string>{"汇总表", "预览 汇总表"}));
}

TEST_F(Printing, a_list_without_rows_is_not_printed) {
    TReport report;
    EXPECT_THROW(report.Act_Print.Execute(), EAbort);
    EXPECT_EQ(desk.ui.last_message(), "没有可打印的内容，请先选择查询条件或录入数据!");
    EXPECT_TRUE(desk.ui.printed.empty());
}

TEST_F(Printing, printing_and_export_are_rights_of_their_own) {
    TReport report;
    report.FunctionCode = "684";
    report.add("1001");
    for (const char* action : {"print", "export"}) {
        the_host().may = [&](const Right& right) { return right.action != action; };
        EXPECT_EQ(report.Act_Print.Execute(), std::string(action) != "print");
        EXPECT_EQ(report.Act_Export.Execute(), std::string(action) != "export");
    }
}

TEST_F(Printing, without_printing_the_actions_are_hidden) {
    desk.ui.prints = false;
    TReport report;
    EXPECT_FALSE(report.Act_Print.Visible);
    EXPECT_FALSE(report.Act_Preview.Visible);
    EXPECT_TRUE(report.Act_Export.Visible);
    TFrm_Base_Node tree(nullptr);
    EXPECT_FALSE(tree.Act_Print.Visible);
}

TEST_F(Printing, a_document_prints_the_fields_of_its_head_above_its_lines) {
    TDocument form;
    form.NoteEdit.Text = "急";
    const Sheet sheet = form.MakeSheet();
    EXPECT_EQ(sheet.conditions, std::vector<std::string>{"备  注：急"});
}

TEST_F(Printing, a_document_that_is_not_saved_is_not_printed) {
    TDocument form;
    form.InitForm("", nullptr);
    EXPECT_THROW(form.Act_Print.Execute(), EAbort);
    EXPECT_EQ(desk.ui.last_message(), "单据还没有保存，请先按 F2 保存再打印!");
}

TEST_F(Printing, a_tree_is_printed) {
    TFrm_Base_Node tree(nullptr);
    tree.Caption = "会计科目";
    tree.TreeView1.AddRoot("1001 现金");
    tree.Act_Print.Execute();
    tree.Act_Preview.Execute();
    EXPECT_EQ(desk.ui.printed, (std::vector<std::string>{"会计科目", "预览 会计科目"}));
}

TEST_F(Printing, a_report_of_two_datasets_prints_what_has_a_label) {
    TClientDataSet head, lines;
    head.DefineField("NOID", FieldType::Text).DisplayLabel = "单号";
    head.Open();
    head.Append();
    head.FieldByName("NOID").SetValue(std::string("XS001"));
    head.Post();
    lines.DefineField("NAME", FieldType::Text).DisplayLabel = "商品";
    lines.DefineField("GUID", FieldType::Text);
    lines.DefineField("J", FieldType::Amount).DisplayLabel = "金额";
    lines.Open();
    TFrm_Sys_Report report(nullptr);
    EXPECT_THROW(report.InitReport(head, lines, "631", "销售单", "", "print", "", ""), EAbort);
    lines.Append();
    lines.Post();
    report.InitReport(head, lines, "631", "销售单", "", "preview", "备注", "");
    EXPECT_EQ(desk.ui.printed, std::vector<std::string>{"预览 销售单"});
    the_host().may = [](const Right&) { return false; };
    EXPECT_THROW(report.InitReport(head, lines, "631", "销售单", "", "print", "", ""), EAbort);
}

} // namespace host
