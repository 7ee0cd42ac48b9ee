// cell: goes to a cell of a grid and types into it.
#include "automation/drive/requests/requests.h"

#include "automation/drive/finding.h"
#include "automation/drive/typing.h"
#include "host/forms/form.h"

namespace automation::requests {

json cell(Driver& driver, const Request& request) {
    host::TForm& form = form_to_act_on(driver, request);
    host::TDBGridEh& grid = grid_of(form, request);
    const std::int64_t row = request.number("row");
    if (row < 0) throw Refusal("\"row\" must not be negative");
    type_into_cell(driver, form, grid, row, request.text("field"), request.member("value"));
    return json::object();
}

} // namespace automation::requests
