// Reads the kind of a column from its field and its marks.
#include "desktop/grid/cell_text.h"

#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

const host::TField* field_of(const host::TDBGridEh& grid, const host::GridColumn& column) {
    return grid.DataSet ? grid.DataSet->FindField(column.FieldName) : nullptr;
}

} // namespace

bool is_amount_column(const host::TDBGridEh& grid, const host::GridColumn& column) {
    if (column.Tag == host::amount_tag || column.RuledAmount) return true;
    const host::TField* field = field_of(grid, column);
    return field && field->Type == host::FieldType::Amount;
}

bool is_whole_number_column(const host::TDBGridEh& grid, const host::GridColumn& column) {
    const host::TField* field = field_of(grid, column);
    return field && field->Type == host::FieldType::Integer;
}

bool is_account_name_column(const host::TDBGridEh& grid, const host::GridColumn& column) {
    return column.FieldName.rfind("KM_NAME", 0) == 0 && !is_entry_grid(grid);
}

Qt::Alignment alignment_of(const host::TDBGridEh& grid, const host::GridColumn& column) {
    if (is_amount_column(grid, column) || column.Align == host::Alignment::Right)
        return Qt::AlignRight | Qt::AlignVCenter;
    if (column.CheckBox || column.Align == host::Alignment::Center)
        return Qt::AlignHCenter | Qt::AlignVCenter;
    if (is_whole_number_column(grid, column)) return Qt::AlignRight | Qt::AlignVCenter;
    return Qt::AlignLeft | Qt::AlignVCenter;
}

bool is_ruled(const host::TDBGridEh& grid) {
    return std::any_of(grid.Columns.begin(), grid.Columns.end(),
                       [](const host::GridColumn& column) { return column.RuledAmount; });
}

bool is_entry_grid(const host::TDBGridEh& grid) {
    if (grid.ReadOnly) return false;
    return std::any_of(grid.Columns.begin(), grid.Columns.end(),
                       [](const host::GridColumn& column) { return !column.ReadOnly; });
}

int row_height(const host::TDBGridEh& grid) {
    if (is_ruled(grid)) return token::voucher_row;
    return is_entry_grid(grid) ? token::entry_row : token::grid_row;
}

} // namespace desktop
