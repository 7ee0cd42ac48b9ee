// How this program writes PDF files.
#pragma once

#include "app/documents/files.h"

namespace app {

// Null in a program that was built without the desktop, which draws the pages.
PdfWriter pdf_writer();

} // namespace app
