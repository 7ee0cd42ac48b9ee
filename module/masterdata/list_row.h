// Shows what a dialog saved in the list behind it, without reading the list again.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "host/dataset/client_dataset.h"
#include "module/host_names.h"

namespace module {

// Writes the values into the list's current row, or into a new one after adding.
void write_list_row(TClientDataSet& list, bool added,
                    const std::vector<std::pair<std::string, Value>>& values);

} // namespace module
