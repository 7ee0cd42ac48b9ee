// A grid as a sheet: columns as on the screen, cells with their types.
#include "host/printing/grid_sheet.h"

#include <gtest/gtest.h>

#include "host/controls/grid.h"
#include "host/controls/tree_view.h"
#include "host/forms/form.h"
#include "tests/support/fake_interface.h"

namespace host {

namespace {

class TList : public TForm {
public:
    TList() : TForm(nullptr) {
        rows.DefineField("KM_ID", FieldType::Text);
        rows.DefineField("ZY", FieldType::Text);
        rows.DefineField("BDATE", FieldType::DateTime).DisplayFormat = "yyyy-mm-dd";
        rows.DefineField("J", FieldType::Amount);
        rows.DefineField("A2", FieldType::Text); // an amount kept as text, as statements do
        rows.DefineField("D", FieldType::Boolean);
        rows.DefineField("N", FieldType::Integer);
        rows.Open();
        Grid.Columns = {{.FieldName = "KM_ID", .Title = "科目", .Width = 12},
                        {.FieldName = "ZY", .Title = "摘要", .Width = -1},
                        {.FieldName = "BDATE", .Title = "日期", .Width = 11},
                        {.FieldName = "J", .Title = "金额|借方", .Width = 14},
                        {.FieldName = "A2", .Title = "金额|年初", .Width = 14, .Tag = 9},
                        {.FieldName = "D", .Title = "登帐", .Width = 6, .CheckBox = true},
                        {.FieldName = "N", .Title = "号", .Width = 5}};
        rows.Append();
        rows.FieldByName("KM_ID").SetValue(std::string("0100"));
        rows.FieldByName("BDATE").SetValue(*DateTime::parse("2024-03-05"));
        rows.FieldByName("J").SetValue(*Amount::parse("-12.5"));
        rows.FieldByName("A2").SetValue(std::string("1234.50"));
        rows.FieldByName("D").SetValue(true);
        rows.FieldByName("N").SetValue(std::int64_t{7});
        rows.Post();
    }
    const char* ClassName() const override { return "TList"; }
    TClientDataSet rows;
    TDBGridEh Grid{this, "Grid", &rows};
};

struct GridSheet : ::testing::Test {
    tests::Desk desk;
    TList form;
    SheetCell cell(const std::string& field) {
        const Sheet sheet = sheet_of(form.Grid, "表");
        return sheet.cell(0, sheet.column_of(field));
    }
};

} // namespace

TEST_F(GridSheet, a_code_of_digits_stays_a_text) {
    EXPECT_EQ(cell("KM_ID").value, Value{std::string("0100")});
}

TEST_F(GridSheet, numbers_days_and_flags_keep_their_types) {
    EXPECT_EQ(cell("J").value, Value{*Amount::parse("-12.5")});
    EXPECT_EQ(cell("N").value, Value{std::int64_t{7}});
    EXPECT_EQ(cell("D").value, Value{true});
    EXPECT_EQ(cell("BDATE").value, Value{*DateTime::parse("2024-03-05")});
    EXPECT_EQ(cell("BDATE").text, "2024-03-05");
    EXPECT_TRUE(is_null(cell("ZY").value));
}

TEST_F(GridSheet, an_amount_kept_as_text_is_an_amount_where_it_can_be_read) {
    EXPECT_EQ(cell("A2").value, Value{*Amount::parse("1234.50")});
    form.rows.Edit();
    form.rows.FieldByName("A2").SetValue(std::string("见附注"));
    EXPECT_EQ(cell("A2").value, Value{std::string("见附注")});
}

TEST_F(GridSheet, a_zero_that_the_form_shows_as_nothing_is_nothing) {
    form.rows.FieldByName("J").OnGetText = [](const TField&) { return std::string(); };
    EXPECT_TRUE(is_null(cell("J").value));
    form.rows.FieldByName("J").OnGetText = [](const TField&) { return std::string("12.50"); };
    EXPECT_EQ(cell("J").value, Value{*Amount::parse("12.5")});
}

TEST_F(GridSheet, columns_stand_as_the_person_has_them) {
    form.Grid.set_shown_columns({{3, 20}, {0, 9}});
    const Sheet sheet = sheet_of(form.Grid, "表");
    ASSERT_EQ(sheet.columns.size(), 2U);
    EXPECT_EQ(sheet.columns[0].title, "金额|借方");
    EXPECT_EQ(sheet.columns[0].width, 20);
    EXPECT_EQ(sheet.cell(0, 1).text, "0100");
    form.Grid.Columns[3].Visible = false; // the form hides what the person had
    EXPECT_EQ(sheet_of(form.Grid, "表").columns.size(), 1U);
}

TEST_F(GridSheet, colours_of_the_form_become_red_and_bold) {
    form.Grid.OnGetCellParams = [](TField& field, CellParams& params) {
        if (field.FieldName == "J") params.Font = 255;
        if (field.FieldName == "KM_ID") params.Font = 0xFF0000;
    };
    EXPECT_TRUE(cell("J").red);
    EXPECT_TRUE(cell("KM_ID").bold);
    EXPECT_FALSE(cell("N").red || cell("N").bold);
}

TEST_F(GridSheet, footers_are_values) {
    EXPECT_TRUE(sheet_of(form.Grid, "表").footers.empty());
    form.Grid.Columns[3].Footer = FooterKind::Sum;
    form.Grid.Columns[1].Footer = FooterKind::Text;
    form.Grid.Columns[1].FooterText = "合计";
    form.Grid.Columns[0].Footer = FooterKind::Count;
    const std::vector<SheetCell> footers = sheet_of(form.Grid, "表").footers;
    ASSERT_EQ(footers.size(), 7U);
    EXPECT_EQ(footers[0].value, Value{std::int64_t{1}});
    EXPECT_EQ(footers[1].value, Value{std::string("合计")});
    EXPECT_EQ(footers[3].value, Value{*Amount::parse("-12.5")});
    EXPECT_EQ(footers[3].text, "-12.50");
    form.Grid.AutoFooter = false;
    EXPECT_TRUE(sheet_of(form.Grid, "表").footers.empty());
}

TEST_F(GridSheet, a_tree_is_a_list_of_codes_names_and_levels) {
    TTreeView tree(&form, "TreeView1");
    TTreeNode* root = tree.AddRoot("1002 银行存款");
    tree.AddChild(root, "100201 工行 园区");
    const Sheet sheet = sheet_of(tree, "会计科目");
    ASSERT_EQ(sheet.rows, 2);
    EXPECT_EQ(sheet.cell(1, 0).value, Value{std::string("100201")});
    EXPECT_EQ(sheet.cell(1, 1).value, Value{std::string("工行 园区")});
    EXPECT_EQ(sheet.cell(1, 1).text, "　工行 园区");
    EXPECT_EQ(sheet.cell(1, 2).value, Value{std::int64_t{2}});
}

} // namespace host
