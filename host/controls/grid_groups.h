// Rows of a grid that belong together, such as the lines of one account in a ledger.
#pragma once

#include <vector>

namespace host {

class TDBGridEh;

// A column with this tag groups the rows: neighbours with the same value in it form a group. The
// column need not be visible; a file the grid is exported to has it all the same. Of several such
// columns the first one decides, the others tell more about the group.
inline constexpr int group_tag = 8;

// The grouping column's index; -1 when the rows are not grouped.
int group_column(const TDBGridEh& grid);

// Is `row` the first one of a group? The first row of a grouped grid is.
bool begins_group(const TDBGridEh& grid, int row);

// The first rows of all groups, in order.
std::vector<int> group_starts(const TDBGridEh& grid);

// The first row of the group after the one of `row`, or of the group before it; behind the last
// group comes the first one and the other way round. -1 when there are no rows or no groups.
int neighbour_group(const TDBGridEh& grid, int row, bool backward);

} // namespace host
