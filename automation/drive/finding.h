// Finds the form, control and column a request names, and says what exists when there is none.
#pragma once

#include "automation/drive/request.h"
#include "host/controls/buttons.h"
#include "host/controls/grid.h"
#include "host/controls/tree_view.h"

namespace host {
class TForm;
}

namespace automation {

class Driver;

// The form named by "form", or the active one. Throws Refusal when there is none.
host::TForm& form_to_read(Driver& driver, const Request& request);
// The same, for acting: refused while a modal form stands over it; otherwise it becomes active.
host::TForm& form_to_act_on(Driver& driver, const Request& request);

// What "control" names: a control, or where no control has the name, the column of a grid that
// shows that field; the current row's cell is then meant.
struct Target {
    host::TControl* control = nullptr;
    int column = -1; // of the grid `control`; -1 when the control itself is meant
};
Target target_of(const host::TForm& form, const Request& request);

host::TControl& control_of(const host::TForm& form, const Request& request);
host::TDBGridEh& grid_of(const host::TForm& form, const Request& request);
host::TTreeView& tree_of(const host::TForm& form, const Request& request);

// All controls of a form in the order they were made; forms it owns are not among them.
std::vector<host::TControl*> controls_of(const host::TForm& form);

// The column of a field, without regard to case. Throws Refusal naming the grid's fields.
int column_of(const host::TDBGridEh& grid, const std::string& field);
int row_count(const host::TDBGridEh& grid); // 0 while the dataset is closed

} // namespace automation
