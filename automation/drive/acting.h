// Acting on a form as a person does: first the focus, then the deed, with what both may refuse.
#pragma once

#include <functional>

#include "automation/drive/request.h"

namespace host {
class TControl;
class TDBGridEh;
class TForm;
class TWinControl;
} // namespace host

namespace automation {

class Driver;

// How a deed ended: as it should, by Abort() after its message was shown, or by a failure.
enum class Ending { Done, Aborted, Failed };

// Runs the deed where events enter a form. A failure throws Refusal with the sentence shown.
Ending act(Driver& driver, const std::function<void()>& deed);
// The same where an Abort() means that the request was not carried out.
void act_fully(Driver& driver, const std::function<void()>& deed);

// Throws Refusal when the control is hidden or disabled.
void require_usable(const host::TControl& control);
void require_writable(const host::TWinControl& control);

// Moves the focus; throws Refusal when the control that has it does not let it go.
void move_focus(Driver& driver, host::TForm& form, host::TWinControl& control);

// Goes to a cell of a grid with the focus on the grid: row `row` (the row count itself appends),
// the column of `field`. Each may be left out (-1, "") to stay where the grid is.
void go_to_cell(Driver& driver, host::TForm& form, host::TDBGridEh& grid, std::int64_t row,
                const std::string& field, bool may_append);

} // namespace automation
