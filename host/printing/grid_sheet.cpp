// Reads the cells of a grid or the nodes of a tree as values with their types.
#include "host/printing/grid_sheet.h"

#include "host/contract/U_function.h"
#include "host/controls/grid.h"
#include "host/controls/grid_groups.h"
#include "host/controls/tree_view.h"
#include "host/values/text.h"

namespace host {

namespace {

bool is_money(const TDBGridEh& grid, const GridColumn& column) {
    const TField* field = grid.DataSet->FindField(column.FieldName);
    return column.Tag == amount_tag || column.RuledAmount ||
           (field != nullptr && field->Type == FieldType::Amount);
}

Alignment alignment_of(const TDBGridEh& grid, const GridColumn& column) {
    if (column.CheckBox) return Alignment::Center;
    const TField* field = grid.DataSet->FindField(column.FieldName);
    const bool number = field != nullptr && field->Type == FieldType::Integer;
    if (is_money(grid, column)) return Alignment::Right;
    return number && column.Align == Alignment::Left ? Alignment::Right : column.Align;
}

SheetColumn sheet_column(const TDBGridEh& grid, const ShownColumn& shown) {
    const GridColumn& column = grid.Columns[static_cast<std::size_t>(shown.column)];
    const TField* field = grid.DataSet->FindField(column.FieldName);
    SheetColumn result;
    result.field = column.FieldName;
    result.title = column.Title;
    result.width = shown.width;
    result.align = alignment_of(grid, column);
    result.amount = is_money(grid, column);
    result.check_box = column.CheckBox;
    result.in_files_only = !column.Visible;
    if (field != nullptr) result.format = field->DisplayFormat;
    if (result.amount && result.format.empty()) result.format = "0.00";
    return result;
}

// The value behind the text that is shown: a form may show a zero as nothing, or a number as a
// word.
Value shown_value(const TField& field, const Value& value, const std::string& text, bool amount) {
    if (text.empty()) return {};
    if (is_null(value)) return Value{text};
    const bool number = field.Type == FieldType::Amount || field.Type == FieldType::Integer;
    if (number && !field.OnGetText) return value;
    if (number || (amount && field.Type == FieldType::Text)) {
        if (trimmed(text).empty()) return {};
        const auto read = Amount::parse(text);
        return read ? Value{*read} : Value{text};
    }
    return field.OnGetText ? Value{text} : value;
}

SheetCell grid_cell(TDBGridEh& grid, int row, int column, bool amount) {
    SheetCell cell;
    const GridColumn& shown = grid.Columns[static_cast<std::size_t>(column)];
    const TField* field = grid.DataSet->FindField(shown.FieldName);
    if (field == nullptr) return cell;
    cell.text = grid.cell_text(row, column);
    const Value value = grid.DataSet->value_at(row, field->index());
    cell.value = shown_value(*field, value, cell.text, amount);
    const CellParams params = grid.cell_params(row, column);
    const auto* money = std::get_if<Amount>(&cell.value);
    cell.red = params.Font == clRed || (amount && money != nullptr && money->is_negative());
    cell.bold = params.Bold || params.Font == clBlue;
    return cell;
}

// The columns seen; what parts the grid into groups without a column in sight stands before them.
std::vector<ShownColumn> columns_of(const TDBGridEh& grid) {
    std::vector<ShownColumn> columns = grid.shown_columns();
    const int group = group_column(grid);
    if (group >= 0 && !grid.Columns[static_cast<std::size_t>(group)].Visible)
        columns.insert(columns.begin(), {group, 0});
    return columns;
}

std::vector<SheetCell> footers_of(const TDBGridEh& grid, const std::vector<ShownColumn>& shown) {
    std::vector<SheetCell> footers;
    bool any = false;
    for (const ShownColumn& column : shown) {
        SheetCell cell;
        cell.value = grid.footer_value(column.column);
        cell.text = grid.footer_text(column.column);
        cell.bold = true;
        const auto* amount = std::get_if<Amount>(&cell.value);
        cell.red = amount != nullptr && amount->is_negative();
        const GridColumn& own = grid.Columns[static_cast<std::size_t>(column.column)];
        any = any || (own.Visible && own.Footer != FooterKind::None);
        footers.push_back(std::move(cell));
    }
    if (!any || !grid.AutoFooter) footers.clear();
    return footers;
}

} // namespace

Sheet sheet_of(TDBGridEh& grid, const std::string& title) {
    Sheet sheet;
    sheet.title = title;
    if (grid.DataSet == nullptr) return sheet;
    const std::vector<ShownColumn> shown = columns_of(grid);
    for (const ShownColumn& column : shown) sheet.columns.push_back(sheet_column(grid, column));
    sheet.rows = grid.DataSet->RecordCount();
    std::vector<bool> amounts;
    for (const SheetColumn& column : sheet.columns) amounts.push_back(column.amount);
    sheet.cell = [&grid, shown, amounts](int row, int column) {
        const auto at = static_cast<std::size_t>(column);
        return grid_cell(grid, row, shown[at].column, amounts[at]);
    };
    sheet.footers = footers_of(grid, shown);
    return sheet;
}

Sheet sheet_of(TTreeView& tree, const std::string& title) {
    Sheet sheet;
    sheet.title = title;
    sheet.columns = {{.field = "CODE", .title = "代号", .width = 16},
                     {.field = "NAME", .title = "名称", .width = -1},
                     {.field = "LEVEL", .title = "级别", .width = 6, .align = Alignment::Center}};
    const std::vector<TTreeNode*> nodes = tree.in_display_order();
    sheet.rows = static_cast<int>(nodes.size());
    sheet.cell = [nodes](int row, int column) {
        const TTreeNode& node = *nodes[static_cast<std::size_t>(row)];
        const std::string code = GETCODE(node.Text);
        if (column == 0) return SheetCell{Value{code}, code};
        if (column == 2) {
            const std::int64_t level = node.level() + 1;
            return SheetCell{Value{level}, std::to_string(level)};
        }
        const std::string name = trimmed(node.Text.substr(code.size()));
        std::string indented;
        for (int level = 0; level < node.level(); ++level) indented += "　";
        return SheetCell{Value{name}, indented + name};
    };
    return sheet;
}

} // namespace host
