// What the painters of a grid need to know of a column: how its cells are written.
#pragma once

#include <QString>

#include "host/controls/grid.h"

namespace desktop {

// An amount column: its field holds amounts, or the form marked it as one (tag 9).
bool is_amount_column(const host::TDBGridEh& grid, const host::GridColumn& column);
bool is_whole_number_column(const host::TDBGridEh& grid, const host::GridColumn& column);
// Full account names ("银行存款-工行") show their parent part quietly, where they are only read.
bool is_account_name_column(const host::TDBGridEh& grid, const host::GridColumn& column);
// How the texts of a column stand: amounts to the right whatever the form says.
Qt::Alignment alignment_of(const host::TDBGridEh& grid, const host::GridColumn& column);
// Any column with ruled digit boxes: the grid is drawn as a paper form.
bool is_ruled(const host::TDBGridEh& grid);
// Can anything in the grid be typed into?
bool is_entry_grid(const host::TDBGridEh& grid);
int row_height(const host::TDBGridEh& grid);

} // namespace desktop
