// Finding groups by the value of the grouping column.
#include "host/controls/grid_groups.h"

#include "host/controls/grid.h"

namespace host {

namespace {

int group_field(const TDBGridEh& grid) {
    const int column = group_column(grid);
    if (column < 0 || grid.DataSet == nullptr) return -1;
    const std::string& name = grid.Columns[static_cast<std::size_t>(column)].FieldName;
    const TField* field = grid.DataSet->FindField(name);
    return field == nullptr ? -1 : field->index();
}

bool differs_from_the_row_above(const TClientDataSet& rows, int field, int row) {
    return row == 0 || rows.text_at(row, field) != rows.text_at(row - 1, field);
}

int first_of_group(const TClientDataSet& rows, int field, int row) {
    while (!differs_from_the_row_above(rows, field, row)) --row;
    return row;
}

} // namespace

int group_column(const TDBGridEh& grid) {
    for (std::size_t i = 0; i < grid.Columns.size(); ++i)
        if (grid.Columns[i].Tag == group_tag) return static_cast<int>(i);
    return -1;
}

bool begins_group(const TDBGridEh& grid, int row) {
    const int field = group_field(grid);
    if (field < 0 || row < 0 || row >= grid.DataSet->RecordCount()) return false;
    return differs_from_the_row_above(*grid.DataSet, field, row);
}

std::vector<int> group_starts(const TDBGridEh& grid) {
    std::vector<int> starts;
    const int field = group_field(grid);
    if (field < 0) return starts;
    for (int row = 0; row < grid.DataSet->RecordCount(); ++row)
        if (differs_from_the_row_above(*grid.DataSet, field, row)) starts.push_back(row);
    return starts;
}

int neighbour_group(const TDBGridEh& grid, int row, bool backward) {
    const int field = group_field(grid);
    if (field < 0 || grid.DataSet->IsEmpty()) return -1;
    const TClientDataSet& rows = *grid.DataSet;
    const int count = rows.RecordCount();
    if (backward) {
        const int first = first_of_group(rows, field, row);
        return first_of_group(rows, field, first == 0 ? count - 1 : first - 1);
    }
    int next = row + 1;
    while (next < count && !differs_from_the_row_above(rows, field, next)) ++next;
    return next < count ? next : 0;
}

} // namespace host
