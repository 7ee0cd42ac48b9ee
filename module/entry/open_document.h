// Opens the document behind a row of a report, to be looked at.
#pragma once

#include <cstdint>
#include <string>

#include "module/host_names.h"

namespace host {
class TForm;
}

namespace module {

// Shows the document with that key in the entry form of its function, read-only, over `opener`. A
// function without a form here (sales and purchase documents belong to other modules) is answered
// as an unknown code of the menu is. Who may not open the function is told so. What the opening
// throws reaches the caller.
//
//     open_document(631, "631240305001", this);
void open_document(std::int32_t function, const std::string& key, TForm* opener);

} // namespace module
