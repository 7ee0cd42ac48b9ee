// Groups of rows, as a ledger shows its accounts.
#include "host/controls/grid_groups.h"

#include "host/forms/form.h"

#include "host/controls/grid.h"
#include "tests/support/fake_interface.h"

namespace host {
namespace {

// Two lines of 1001, one of 1002, three of 1131.
struct GridGroups : ::testing::Test {
    GridGroups() {
        lines.DefineField("KM_ID", FieldType::Text);
        lines.Open();
        for (const char* account : {"1001", "1001", "1002", "1131", "1131", "1131"}) {
            lines.Append();
            lines.FieldByName("KM_ID").SetValue(std::string(account));
            lines.Post();
        }
        grid.Columns = {{.FieldName = "KM_ID", .Title = "科目", .Visible = false}};
        grid.Columns[0].Tag = group_tag;
    }
    tests::Desk desk;
    TForm form{nullptr};
    TClientDataSet lines;
    TDBGridEh grid{&form, "DBGridEh", &lines};
};

TEST_F(GridGroups, neighbours_with_the_same_value_belong_together) {
    const bool begins[] = {true, false, true, true, false, false};
    for (int row = 0; row < 6; ++row) EXPECT_EQ(begins_group(grid, row), begins[row]) << row;
    EXPECT_FALSE(begins_group(grid, 6));
    EXPECT_EQ(group_starts(grid), (std::vector<int>{0, 2, 3}));
}

TEST_F(GridGroups, the_next_group_begins_with_its_first_row_and_after_the_last_comes_the_first) {
    struct Step {
        int from, next, before;
    };
    const Step steps[] = {{0, 2, 3}, {1, 2, 3}, {2, 3, 0}, {3, 0, 2}, {5, 0, 2}};
    for (const Step& step : steps) {
        EXPECT_EQ(neighbour_group(grid, step.from, false), step.next) << step.from;
        EXPECT_EQ(neighbour_group(grid, step.from, true), step.before) << step.from;
    }
}

TEST_F(GridGroups, rows_without_a_grouping_column_have_no_groups) {
    grid.Columns[0].Tag = 0;
    EXPECT_EQ(group_column(grid), -1);
    EXPECT_FALSE(begins_group(grid, 0));
    EXPECT_TRUE(group_starts(grid).empty());
    EXPECT_EQ(neighbour_group(grid, 0, false), -1);
}

TEST_F(GridGroups, an_empty_grid_has_no_groups) {
    lines.EmptyDataSet();
    EXPECT_EQ(neighbour_group(grid, 0, false), -1);
    EXPECT_FALSE(begins_group(grid, 0));
}

} // namespace
} // namespace host
