// The texts of a printed table's cells, and which titles stand together.
#pragma once

#include <string>

#include "host/printing/sheet.h"

namespace host {

// Columns first to end - 1 share the upper part of their titles; a column without one stands alone.
struct TitleGroup {
    int first = 0, end = 1;
};
TitleGroup title_group(const Sheet& sheet, int column);

// Money with its thousands parted, "-1,234.50"; a flag as a check mark; anything else as it is
// shown.
std::string text_on_paper(const SheetColumn& column, const SheetCell& cell);

bool is_zero(const SheetCell& cell); // an amount or a number of 0

} // namespace host
