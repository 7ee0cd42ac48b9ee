// Typing into a cell of a grid, up to and including leaving the cell.
#include "automation/drive/typing.h"

#include "automation/drive/acting.h"
#include "automation/drive/driver.h"
#include "automation/drive/finding.h"
#include "host/forms/form.h"

namespace automation {

namespace {

std::string typed_text(const nlohmann::json& value) {
    if (value.is_string()) return value.get<std::string>();
    if (value.is_boolean()) return value.get<bool>() ? "1" : "0";
    if (value.is_null()) return {};
    if (value.is_number()) return value.dump();
    throw Refusal("\"value\" must be a text, a number or a flag");
}

} // namespace

void type_into_cell(Driver& driver, host::TForm& form, host::TDBGridEh& grid, std::int64_t row,
                    const std::string& field, const nlohmann::json& value) {
    const std::string text = typed_text(value);
    const int column = column_of(grid, field);
    if (!grid.Columns[static_cast<std::size_t>(column)].Visible) {
        throw Refusal("the column " + field + " is not visible");
    }
    require_writable(grid);
    if (row < 0 && row_count(grid) == 0) throw Refusal(grid.Name() + " has no current row");
    go_to_cell(driver, form, grid, row, field, true);
    if (!grid.can_edit(column)) throw Refusal("the column " + field + " is read-only here");
    act_fully(driver, [&] {
        grid.enter_cell(text);
        if (grid.OnColExit) grid.OnColExit();
    });
}

} // namespace automation
