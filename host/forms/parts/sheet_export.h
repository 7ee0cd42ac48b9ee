// A sheet as a file that spreadsheets open.
#pragma once

#include <string>

#include "host/printing/sheet.h"

namespace host {

// What is said when the person stopped an export that took long.
inline constexpr const char* export_stopped = "导出已取消,没有写文件!";

// The sheet as comma-separated values in UTF-8 with a byte order mark, lines ended by CR LF: titles
// first, numbers without separators, the footers last when there are any.
std::string sheet_as_csv(const Sheet& sheet);

// Asks where to, suggesting the sheet's title, and writes the file: a name that ends in .xlsx makes
// a spreadsheet with typed cells, any other name comma-separated values. Tells how many rows went,
// or what kept the file from being written. Nothing happens when the person changes his mind.
void export_sheet(const Sheet& sheet);

} // namespace host
