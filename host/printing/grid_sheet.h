// A grid and a tree as sheets.
#pragma once

#include <string>

#include "host/printing/sheet.h"

namespace host {

class TDBGridEh;
class TTreeView;

// The columns as the person has them on the screen, before them (for files only) a grouping column
// that is not seen, and all rows in view. Amounts that a form keeps as texts count as amounts where
// they can be read as such; codes stay texts.
Sheet sheet_of(TDBGridEh& grid, const std::string& title);

// Code, name (set in by its level) and level of every node.
Sheet sheet_of(TTreeView& tree, const std::string& title);

} // namespace host
