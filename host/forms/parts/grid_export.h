// A grid as a text file that spreadsheets open.
#pragma once

#include <string>

namespace host {

class TDBGridEh;

// The visible columns and all rows as comma-separated values in UTF-8 with a byte order mark, lines
// ended by CR LF: titles first, amounts as plain numbers, the footers last when there are any.
// Long grids tell how far they are; stopped by the person, it says so and ends by Abort().
std::string grid_as_csv(const TDBGridEh& grid);

// Asks where to, suggesting `title`, and writes the file; tells how many rows went or what kept it
// from being written. Stopped, it writes none.
void export_grid(const TDBGridEh& grid, const std::string& title);

} // namespace host
