// Order and width of a grid's columns, kept from one use of a form to the next.
#pragma once

namespace host {

class TDBGridEh;

// Kept per company under the form's and the grid's name. A grid whose columns are others than when
// it was kept is left as its form made it.
void restore_columns(TDBGridEh& grid);
void keep_columns(const TDBGridEh& grid);

} // namespace host
