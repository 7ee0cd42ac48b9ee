// A grid: what it shows, where Enter goes, what typing does.
#include "host/controls/grid.h"

#include "host/values/errors.h"
#include "tests/support/fake_interface.h"

namespace host {

namespace {

// Voucher lines: summary, account, full name (read only), debit, credit.
class TSheet : public TForm {
public:
    TSheet() : TForm(nullptr) {
        lines.DefineField("ZY", FieldType::Text, 100);
        lines.DefineField("KM_ID", FieldType::Text, 50);
        lines.DefineField("KM_NAME", FieldType::Text);
        lines.DefineField("J", FieldType::Amount).DisplayFormat = "0.00";
        lines.DefineField("D", FieldType::Amount).DisplayFormat = "0.00";
        lines.Open();
        for (const char* field : {"ZY", "KM_ID", "KM_NAME", "J", "D"}) {
            GridColumn column;
            column.FieldName = column.Title = field;
            column.ReadOnly = column.FieldName == "KM_NAME";
            if (column.FieldName == "J") column.Footer = FooterKind::Sum;
            Grid.Columns.push_back(column);
        }
        Grid.Columns[2].Footer = FooterKind::Text;
        Grid.Columns[2].FooterText = "合计";
    }
    const char* ClassName() const override { return "TSheet"; }
    TClientDataSet lines;
    TDBGridEh Grid{this, "Grid", &lines};
};

class Grid : public ::testing::Test {
protected:
    Grid() { form.Grid.SetFocus(); }
    void cell(const char* field, const std::string& text) {
        form.Grid.SelectField(field);
        form.Grid.enter_cell(text);
    }
    void row(const std::string& summary, const std::string& account, const std::string& debit) {
        form.lines.Append();
        cell("ZY", summary);
        cell("KM_ID", account);
        cell("J", debit);
        form.lines.Post();
    }
    std::string column() { return form.Grid.current_column()->FieldName; }
    tests::Desk desk;
    TSheet form;
    TDBGridEh& grid = form.Grid;
};

} // namespace

TEST_F(Grid, typing_into_an_empty_grid_makes_its_first_row) {
    tests::type(form, "付款");
    EXPECT_TRUE(grid.editing());
    tests::press(form, "Enter");
    EXPECT_EQ(form.lines.RecordCount(), 1);
    EXPECT_EQ(grid.cell_text(0, 0), "付款");
    EXPECT_EQ(column(), "KM_ID");
}

TEST_F(Grid, enter_goes_over_editable_cells_and_appends_below_the_last_row) {
    row("付款", "1002", "500");
    grid.SelectField("KM_ID");
    tests::press(form, "Enter");
    EXPECT_EQ(column(), "J"); // past the read-only name
    tests::press(form, "Enter");
    EXPECT_EQ(column(), "D");
    tests::press(form, "Enter");
    EXPECT_EQ(column(), "ZY");
    EXPECT_EQ(form.lines.RecNo(), 1);
    EXPECT_EQ(form.lines.State(), DataSetState::Insert);
}

TEST_F(Grid, an_empty_last_row_is_not_followed_by_another) {
    row("付款", "1002", "500");
    grid.set_row(1);
    grid.SelectField("D");
    EXPECT_FALSE(grid.next_cell());
    tests::press(form, "Down");
    EXPECT_EQ(form.lines.RecordCount(), 2);
    tests::press(form, "Up");
    EXPECT_EQ(form.lines.RecordCount(), 1); // what was only begun is gone
}

TEST_F(Grid, a_text_that_does_not_fit_is_refused_and_the_cell_stays) {
    row("付款", "1002", "500");
    grid.SelectField("J");
    EXPECT_THROW(grid.enter_cell("abc"), EAbort);
    EXPECT_EQ(desk.ui.last_message(), "“J”不能是“abc”，请录入数字。");
    EXPECT_EQ(grid.cell_text(0, 3), "500.00");
    tests::type(form, "12x");
    tests::press(form, "Enter");
    EXPECT_EQ(column(), "J");
    EXPECT_EQ(grid.cell_text(0, 3), "500.00");
}

TEST_F(Grid, a_key_handler_may_swallow_or_replace_a_character) {
    row("付款", "1002", "500");
    int swaps = 0;
    grid.OnKeyPress = [&](char32_t& character) {
        if (character == ' ' && column() == "J") {
            ++swaps;
            character = 0;
        }
        if (character == U'。') character = U'.';
    };
    grid.SelectField("J");
    tests::press(form, "Space");
    EXPECT_EQ(swaps, 1);
    EXPECT_FALSE(grid.editing());
    grid.enter_cell("12。5");
    EXPECT_EQ(grid.cell_text(0, 3), "12.50");
}

TEST_F(Grid, a_set_text_handler_decides_what_is_kept) {
    form.lines.FieldByName("J").OnSetText = [](TField& field, const std::string& typed) {
        field.SetConverted(typed);
        field.dataset()->FieldByName("D").SetValue(Amount());
    };
    row("付款", "1002", "");
    cell("D", "7");
    cell("J", "3");
    EXPECT_EQ(grid.cell_text(0, 4), "0.00");
}

TEST_F(Grid, text_of_any_shape_is_kept_and_too_long_is_refused) {
    form.lines.Append();
    cell("ZY", "O'Brien; \"😀\" --");
    EXPECT_EQ(grid.cell_text(0, 0), "O'Brien; \"😀\" --");
    grid.SelectField("ZY");
    EXPECT_THROW(grid.enter_cell(std::string(101, 'x')), EAbort);
    EXPECT_EQ(desk.ui.last_message(), "“ZY”最多 100 个字，录入了 101 个字，请缩短。");
    EXPECT_THROW(grid.enter_cell("a\x01"), EAbort);
    EXPECT_EQ(grid.cell_text(0, 0), "O'Brien; \"😀\" --");
}

TEST_F(Grid, footers_show_sums_texts_and_sums_of_another_field) {
    row("a", "1002", "500");
    row("b", "1001", "-0.5");
    EXPECT_EQ(grid.footer_text(3), "499.50");
    EXPECT_EQ(grid.footer_text(2), "合计");
    grid.Columns[4].Footer = FooterKind::Sum;
    grid.Columns[4].FooterField = "J";
    EXPECT_EQ(grid.footer_text(4), "499.50");
    grid.Columns[0].Footer = FooterKind::Count;
    EXPECT_EQ(grid.footer_text(0), "2");
    EXPECT_EQ(grid.footer_text(1), "");
}

TEST_F(Grid, cells_are_coloured_by_the_row_they_stand_in) {
    row("a", "1002", "500");
    row("b", "1001", "-1");
    grid.OnGetCellParams = [](TField& field, CellParams& params) {
        if (field.AsAmount().is_negative()) params.Font = 255;
    };
    form.lines.First();
    EXPECT_EQ(grid.cell_params(1, 3).Font, 255);
    EXPECT_EQ(grid.cell_params(0, 3).Font, clDefault);
    EXPECT_EQ(form.lines.RecNo(), 0);
}

TEST_F(Grid, a_title_sorts_and_sorts_the_other_way_again) {
    row("a", "1009", "1");
    row("b", "1001", "2");
    grid.title_click(1);
    EXPECT_EQ(grid.cell_text(0, 1), "1001");
    grid.title_click(1);
    EXPECT_EQ(grid.cell_text(0, 1), "1009");
}

TEST_F(Grid, marks_name_rows_until_the_rows_change_places) {
    row("a", "1", "1");
    row("b", "2", "2");
    row("c", "3", "3");
    form.lines.First();
    EXPECT_EQ(grid.selected_rows(), std::vector<int>{0});
    grid.mark_row(2, true);
    grid.mark_row(1, true);
    EXPECT_EQ(grid.selected_rows(), (std::vector<int>{1, 2}));
    grid.mark_row(1, false);
    EXPECT_EQ(grid.selected_rows(), std::vector<int>{2});
    grid.title_click(0);
    EXPECT_EQ(grid.selected_rows(), std::vector<int>{form.lines.RecNo()});
}

TEST_F(Grid, typing_in_a_grid_that_only_shows_finds_by_text_and_by_ear) {
    row("付款", "1002", "1");
    row("银行存款", "1001", "2");
    row("银行汇票", "1003", "3");
    form.lines.First();
    grid.ReadOnly = true;
    grid.SelectField("ZY");
    tests::type(form, "yh");
    EXPECT_EQ(form.lines.RecNo(), 1);
    tests::type(form, "h");
    EXPECT_EQ(form.lines.RecNo(), 2); // yhh: 银行汇票
}

TEST_F(Grid, copies_the_marked_rows_as_text) {
    row("a", "1002", "500");
    form.lines.Edit();
    form.lines.FieldByName("ZY").SetValue(std::string("a\tb"));
    form.lines.Post();
    row("c", "1001", "1");
    grid.Columns[4].Visible = false;
    grid.mark_row(0, true);
    tests::press(form, "Ctrl+C");
    EXPECT_EQ(desk.ui.clipboard, "ZY\tKM_ID\tKM_NAME\tJ\na b\t1002\t\t500.00\n");
}

TEST_F(Grid, leaving_a_row_that_is_refused_stays_in_it) {
    row("a", "1002", "1");
    row("b", "1001", "2");
    form.lines.BeforePost = [] { Abort(); };
    cell("ZY", "changed");
    EXPECT_FALSE(grid.set_row(0));
    EXPECT_EQ(form.lines.RecNo(), 1);
}

TEST_F(Grid, a_column_may_refuse_to_be_entered) {
    row("a", "1002", "1");
    grid.SelectField("ZY");
    grid.OnColEnter = [] { Abort(); };
    EXPECT_FALSE(grid.set_column(1));
    EXPECT_EQ(column(), "ZY");
}

TEST_F(Grid, escape_gives_up_the_cell_then_the_row) {
    row("a", "1002", "1");
    grid.SelectField("ZY");
    tests::type(form, "x");
    tests::press(form, "Esc");
    EXPECT_FALSE(grid.editing());
    cell("ZY", "changed");
    tests::press(form, "Esc");
    EXPECT_EQ(grid.cell_text(0, 0), "a");
}

TEST_F(Grid, the_lookup_button_belongs_to_its_column) {
    row("a", "1002", "1");
    std::string pressed;
    grid.Columns[1].Button = true;
    grid.OnButtonClick = [&](GridColumn& chosen) { pressed += chosen.FieldName; };
    grid.SelectField("ZY");
    tests::press(form, "F4");
    EXPECT_EQ(pressed, "");
    grid.SelectField("KM_ID");
    tests::press(form, "F4");
    EXPECT_EQ(pressed, "KM_ID");
}

TEST_F(Grid, a_suggestion_chosen_replaces_what_was_typed) {
    row("a", "1002", "1");
    grid.OnSuggest = [](const GridColumn&, const std::string& typed) {
        return std::vector<Suggestion>{{typed + "01", {typed}, "k"}};
    };
    grid.SelectField("KM_ID");
    tests::type(form, "66");
    ASSERT_EQ(grid.suggestions().size(), 1U);
    grid.choose(grid.suggestions().front());
    EXPECT_EQ(grid.cell_text(0, 1), "6601");
    EXPECT_FALSE(grid.editing());
}

TEST_F(Grid, delete_empties_a_cell) {
    row("a", "1002", "1");
    grid.SelectField("J");
    tests::press(form, "Delete");
    EXPECT_EQ(grid.cell_text(0, 3), "");
}

} // namespace host
