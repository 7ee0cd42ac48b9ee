// lookup: the button behind a code, in an edit or in a cell.
#include "automation/drive/requests/requests.h"

#include "automation/drive/acting.h"
#include "automation/drive/driver.h"
#include "automation/drive/finding.h"
#include "host/forms/form.h"

namespace automation::requests {

json lookup(Driver& driver, const Request& request) {
    host::TForm& form = form_to_act_on(driver, request);
    const Target target = target_of(form, request);
    if (auto* link = dynamic_cast<host::TLinkEdit*>(target.control)) {
        require_writable(*link);
        if (!link->OnButtonClick) throw Refusal(link->Name() + " has no lookup");
        move_focus(driver, form, *link);
        act(driver, [&] { link->OnButtonClick(); });
        return json::object();
    }
    auto* grid = dynamic_cast<host::TDBGridEh*>(target.control);
    if (grid == nullptr) throw Refusal(target.control->Name() + " has no lookup button");
    const std::string field = target.column >= 0
                                  ? grid->Columns[static_cast<std::size_t>(target.column)].FieldName
                                  : request.text("field");
    const int column = column_of(*grid, field);
    if (!grid->Columns[static_cast<std::size_t>(column)].Button) {
        throw Refusal("the column " + field + " has no lookup button");
    }
    go_to_cell(driver, form, *grid, request.number_or("row", -1), field, true);
    act(driver, [&] { grid->press_button(); });
    return json::object();
}

} // namespace automation::requests
