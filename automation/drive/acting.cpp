// Acting on a form as a person does: first the focus, then the deed, with what both may refuse.
#include "automation/drive/acting.h"

#include "automation/drive/driver.h"
#include "automation/drive/finding.h"
#include "host/controls/grid.h"
#include "host/forms/event_gate.h"
#include "host/forms/form.h"
#include "host/ports/host.h"
#include "host/values/errors.h"

namespace automation {

namespace {

// "; 科目不存在!" behind an error, or nothing when no message was shown.
std::string told(const Driver& driver) {
    const std::string message = driver.last_message();
    return message.empty() ? message : ": " + message;
}

// A form may bring another one to the front by itself and stay open behind it.
void follow_active(Driver& driver, const host::TForm* before) {
    host::TForm* now = host::the_host().active;
    if (now == nullptr || before == nullptr || now == before) return;
    if (driver.forms().is_open(*before)) driver.forms().activate(*now);
}

} // namespace

Ending act(Driver& driver, const std::function<void()>& deed) {
    Ending ending = Ending::Done;
    const host::TForm* before = host::the_host().active;
    host::enter_event([&] {
        try {
            deed();
        } catch (const host::EAbort&) {
            ending = Ending::Aborted;
            throw;
        } catch (...) {
            ending = Ending::Failed;
            throw;
        }
    });
    follow_active(driver, before);
    if (ending == Ending::Failed) throw Refusal("the request failed" + told(driver));
    return ending;
}

void act_fully(Driver& driver, const std::function<void()>& deed) {
    if (act(driver, deed) == Ending::Aborted) throw Refusal("refused" + told(driver));
}

void require_usable(const host::TControl& control) {
    if (!control.Visible) throw Refusal(control.Name() + " is not visible");
    if (!control.Enabled) throw Refusal(control.Name() + " is disabled");
}

void require_writable(const host::TWinControl& control) {
    require_usable(control);
    if (control.ReadOnly) throw Refusal(control.Name() + " is read-only");
}

void move_focus(Driver& driver, host::TForm& form, host::TWinControl& control) {
    require_usable(control);
    if (form.ActiveControl() == &control) return;
    act(driver, [&] { form.SetFocusTo(control); });
    if (!driver.forms().is_open(form)) throw Refusal("the form was closed");
    if (form.ActiveControl() == &control) return;
    const host::TWinControl* kept = form.ActiveControl();
    throw Refusal("the focus stays on " + (kept == nullptr ? "no control" : kept->Name()) +
                  told(driver));
}

void go_to_cell(Driver& driver, host::TForm& form, host::TDBGridEh& grid, std::int64_t row,
                const std::string& field, bool may_append) {
    move_focus(driver, form, grid);
    const int column = field.empty() ? grid.column() : column_of(grid, field);
    const int count = row_count(grid);
    if (row >= 0) {
        const int last = may_append ? count : count - 1;
        if (row > last) {
            throw Refusal(grid.Name() + " has " + std::to_string(count) + " rows, counted from 0");
        }
        bool arrived = false;
        act_fully(driver, [&] { arrived = grid.set_row(static_cast<int>(row)); });
        if (!arrived) throw Refusal("the row cannot be left or entered" + told(driver));
    }
    if (field.empty()) return;
    bool entered = false;
    act_fully(driver, [&] { entered = grid.set_column(column); });
    if (!entered) throw Refusal("the column " + field + " cannot be entered" + told(driver));
}

} // namespace automation
