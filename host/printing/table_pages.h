// Where the pages of a printed list end, and what an account book carries over.
#pragma once

#include <optional>
#include <vector>

#include "host/printing/sheet.h"

namespace host {

// The sums at a page's end, one a field of CarriedSums::added. Nothing was added up since the last
// opening: no sum is shown.
using SumsSoFar = std::optional<std::vector<Amount>>;

struct TablePage {
    int first = 0, count = 0; // rows of the sheet
    bool carried_in = false;  // begins with 承前页
    bool carried_out = false; // ends with 过次页
    bool footers = false;     // ends with the footers
    SumsSoFar in, out;
};

// `lines` is how many rows a page holds, the carried ones and the footers among them; at least 4.
// Footers never stand alone on a page. A sheet without rows has one page.
std::vector<TablePage> break_into_pages(const Sheet& sheet, int lines);

} // namespace host
