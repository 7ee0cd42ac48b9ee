// A sheet as a workbook of one page (XLSX).
#pragma once

#include <string>

#include "host/printing/sheet.h"

namespace app {

// Titles in the first row (two where they are grouped), frozen; numbers as numbers with their
// format, days as days, texts as texts, so that a code keeps its zeros; footers below as values.
// The conditions stand in the workbook's properties and at the head of its printed pages. Answers
// "" or the sentence that says what kept the file from being written.
std::string write_spreadsheet(const host::Sheet& sheet, const std::string& path);

} // namespace app
