// focus: moves the focus, as the Tab key or a click would.
#include "automation/drive/requests/requests.h"

#include "automation/drive/acting.h"
#include "automation/drive/finding.h"
#include "host/forms/form.h"

namespace automation::requests {

json focus(Driver& driver, const Request& request) {
    host::TForm& form = form_to_act_on(driver, request);
    const Target target = target_of(form, request);
    auto* window = dynamic_cast<host::TWinControl*>(target.control);
    if (window == nullptr) throw Refusal(target.control->Name() + " takes no focus");
    move_focus(driver, form, *window);
    if (target.column >= 0) {
        auto& grid = static_cast<host::TDBGridEh&>(*window);
        go_to_cell(driver, form, grid, -1, request.text("control"), false);
    }
    return json::object();
}

} // namespace automation::requests
