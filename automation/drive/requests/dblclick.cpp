// dblclick: a double click on a cell of a grid or on the selected node of a tree.
#include "automation/drive/requests/requests.h"

#include "automation/drive/acting.h"
#include "automation/drive/driver.h"
#include "automation/drive/finding.h"
#include "host/forms/form.h"

namespace automation::requests {

json dblclick(Driver& driver, const Request& request) {
    host::TForm& form = form_to_act_on(driver, request);
    host::TControl& control = control_of(form, request);
    require_usable(control);
    if (auto* tree = dynamic_cast<host::TTreeView*>(&control)) {
        if (!tree->OnDblClick) throw Refusal(tree->Name() + " does nothing when double-clicked");
        move_focus(driver, form, *tree);
        act(driver, [&] { tree->OnDblClick(); });
        return json::object();
    }
    host::TDBGridEh& grid = grid_of(form, request);
    const std::int64_t row = request.number_or("row", -1);
    go_to_cell(driver, form, grid, row, request.text_or("field", ""), false);
    act(driver, [&] { grid.double_click(); });
    return json::object();
}

} // namespace automation::requests
