// row: makes a row the current one, and marks it where rows can be marked.
#include "automation/drive/requests/requests.h"

#include "automation/drive/acting.h"
#include "automation/drive/driver.h"
#include "automation/drive/finding.h"
#include "host/forms/form.h"

namespace automation::requests {

json row(Driver& driver, const Request& request) {
    host::TForm& form = form_to_act_on(driver, request);
    host::TDBGridEh& grid = grid_of(form, request);
    const std::int64_t row = request.number("row");
    if (row < 0) throw Refusal("\"row\" must not be negative");
    if (request.has("mark") && !grid.MultiSelect) {
        throw Refusal("the rows of " + grid.Name() + " cannot be marked");
    }
    go_to_cell(driver, form, grid, row, "", false);
    if (request.has("mark")) {
        const bool on = request.flag_or("mark", true);
        act_fully(driver, [&] { grid.mark_row(static_cast<int>(row), on); });
    }
    return json::object();
}

} // namespace automation::requests
