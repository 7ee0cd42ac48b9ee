// How wide the columns of a sheet are on paper, and how the paper lies.
#pragma once

#include <vector>

#include "host/printing/paper.h"
#include "host/printing/sheet.h"

namespace host {

// Upright as long as the columns have the room they have on the screen; what is wider lies across,
// and where even that is too narrow everything is set smaller, down to what can still be read.
struct TableColumns {
    PaperSize paper;
    int left = 0;            // edge of the first column
    std::vector<int> widths; // fill the paper between its margins
    int size = 90;           // of the type, tenths of a point
    int row_height = 600;

    int width() const;
};

inline constexpr int paper_margin = 1500; // left and right

TableColumns columns_on_paper(const Sheet& sheet);

// Room a text takes in characters of ordinary type: a Chinese character counts two.
int wide_characters(const std::string& text);

} // namespace host
