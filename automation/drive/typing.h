// Typing into a cell of a grid, up to and including leaving the cell.
#pragma once

#include "automation/drive/request.h"

namespace host {
class TDBGridEh;
class TForm;
} // namespace host

namespace automation {

class Driver;

// `row` may be the row count, which appends a row first; -1 stays on the current row. Throws
// Refusal when the row, column or value is refused; the messages say why.
void type_into_cell(Driver& driver, host::TForm& form, host::TDBGridEh& grid, std::int64_t row,
                    const std::string& field, const nlohmann::json& value);

} // namespace automation
