// From a form's sheet to the document that is printed.
#pragma once

#include <memory>

#include "host/printing/paper.h"
#include "host/printing/sheet.h"

namespace host {

// Does the user interface offer printing? Forms hide their actions otherwise.
bool can_print();

// The sheet on paper, with the company, who printed it and when. A sheet without rows is not
// printed: says so and aborts.
std::unique_ptr<PaperDocument> paper_of(Sheet sheet);

} // namespace host
