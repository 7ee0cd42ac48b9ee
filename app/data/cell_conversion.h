// A column and a cell of an engine as the host knows them.
#pragma once

#include "engines/statement.h"
#include "host/ports/data_port.h"

namespace app {

// Decimals become amounts, with their text where digits go beyond one; what the host has no type
// for (times, identifiers, bytes) becomes text.
host::ColumnDescription description_of(const engines::Column& column);

// Converts one cell. A text made here is kept in `storage`, which must outlive the view.
// Throws host::DataError when a number lies outside what an amount can hold.
host::CellView view_of(const engines::Value& value, std::string& storage);

} // namespace app
