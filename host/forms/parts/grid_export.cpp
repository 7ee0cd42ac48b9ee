// Writing a grid as comma-separated values.
#include "host/forms/parts/grid_export.h"

#include <vector>

#include "host/contract/U_function.h"
#include "host/controls/grid.h"
#include "host/controls/grid_groups.h"
#include "host/forms/parts/long_work.h"
#include "host/forms/parts/text_file.h"
#include "host/values/errors.h"
#include "host/values/text.h"

namespace host {

namespace {

// Numbers are written without separators, so that a spreadsheet reads them as numbers.
std::string cell(const TDBGridEh& grid, int row, int column) {
    const TField* field =
        grid.DataSet->FindField(grid.Columns[static_cast<std::size_t>(column)].FieldName);
    if (field == nullptr) return {};
    const bool amount = field->Type == FieldType::Amount && !field->OnGetText;
    if (!amount) return grid.cell_text(row, column);
    return formatted(grid.DataSet->value_at(row, field->index()),
                     replaced(field->DisplayFormat, "#,##", ""));
}

// The visible columns. What parts a grid into groups without a column in sight stands before them:
// in a file nothing else says which account a line belongs to.
std::vector<int> columns_of(const TDBGridEh& grid) {
    std::vector<int> hidden_groups, visible;
    for (int i = 0; i < static_cast<int>(grid.Columns.size()); ++i) {
        const GridColumn& column = grid.Columns[static_cast<std::size_t>(i)];
        if (column.Visible)
            visible.push_back(i);
        else if (column.Tag == group_tag)
            hidden_groups.push_back(i);
    }
    hidden_groups.insert(hidden_groups.end(), visible.begin(), visible.end());
    return hidden_groups;
}

template <class Text>
void add_line(std::string& lines, const std::vector<int>& columns, Text text) {
    bool first = true;
    for (const int column : columns) {
        if (!first) lines += ',';
        lines += csv_field(text(column));
        first = false;
    }
    lines += "\r\n";
}

void add_rows(std::string& lines, const TDBGridEh& grid, const std::vector<int>& columns) {
    const int rows = grid.DataSet->RecordCount();
    bool go_on = true;
    {
        LongWork work("正在导出…", rows);
        for (int row = 0; row < rows && go_on; ++row) {
            add_line(lines, columns, [&](int i) { return cell(grid, row, i); });
            go_on = work.step();
        }
    }
    if (go_on) return;
    DISPINFO("导出已取消,没有写文件!", 5);
    Abort();
}

} // namespace

std::string grid_as_csv(const TDBGridEh& grid) {
    std::string lines = "\xEF\xBB\xBF";
    const std::vector<int> columns = columns_of(grid);
    add_line(lines, columns, [&](int i) {
        return replaced(grid.Columns[static_cast<std::size_t>(i)].Title, "|", " ");
    });
    add_rows(lines, grid, columns);
    bool footers = false;
    for (const GridColumn& column : grid.Columns)
        footers = footers || (column.Visible && column.Footer != FooterKind::None);
    if (footers && grid.AutoFooter)
        add_line(lines, columns, [&](int i) { return replaced(grid.footer_text(i), ",", ""); });
    return lines;
}

void export_grid(const TDBGridEh& grid, const std::string& title) {
    if (grid.DataSet == nullptr) return;
    save_text_as(title, [&] { return grid_as_csv(grid); },
                 "已导出 " + std::to_string(grid.DataSet->RecordCount()) + " 行到 ");
}

} // namespace host
