// Finds the form, control and column a request names, and says what exists when there is none.
#include "automation/drive/finding.h"

#include "automation/drive/acting.h"
#include "automation/drive/driver.h"
#include "host/forms/form.h"
#include "host/values/text.h"

namespace automation {

namespace {

std::string names_of(const host::TForm& form) {
    std::string names;
    for (const host::TControl* control : controls_of(form)) {
        names += (names.empty() ? "" : ", ") + control->Name();
    }
    return names.empty() ? "no controls" : names;
}

// The part as a control of the form; forms in forms are none.
host::TControl* as_control(const host::TForm& form, host::TComponent& part) {
    auto* control = dynamic_cast<host::TControl*>(&part);
    if (control == nullptr || control == &form) return nullptr;
    return dynamic_cast<host::TForm*>(control) == nullptr ? control : nullptr;
}

Target find_target(const host::TForm& form, const std::string& name) {
    for (host::TComponent* part : form.components()) {
        if (!host::same_text(part->Name(), name)) continue;
        if (host::TControl* control = as_control(form, *part)) return {control, -1};
    }
    for (host::TControl* control : controls_of(form)) {
        auto* grid = dynamic_cast<host::TDBGridEh*>(control);
        if (grid == nullptr) continue;
        for (std::size_t at = 0; at < grid->Columns.size(); ++at) {
            if (host::same_text(grid->Columns[at].FieldName, name))
                return {grid, static_cast<int>(at)};
        }
    }
    return {};
}

template <class Wanted>
Wanted& control_as(const host::TForm& form, const Request& request, const char* kind) {
    host::TControl& control = control_of(form, request);
    if (auto* wanted = dynamic_cast<Wanted*>(&control)) return *wanted;
    std::string names;
    for (host::TControl* other : controls_of(form)) {
        if (dynamic_cast<Wanted*>(other) == nullptr) continue;
        names += (names.empty() ? "" : ", ") + other->Name();
    }
    throw Refusal(control.Name() + " is no " + kind + "; the form has " +
                  (names.empty() ? "none" : names));
}

} // namespace

host::TForm& form_to_read(Driver& driver, const Request& request) {
    if (request.has("form") && !request.member("form").is_null()) {
        const std::string name = request.text("form");
        if (host::TForm* form = driver.forms().find(name)) return *form;
        throw Refusal("no open form is named \"" + name + "\"; open: " + driver.forms().listed());
    }
    if (host::TForm* form = driver.forms().active()) return *form;
    throw Refusal("no form is open");
}

host::TForm& form_to_act_on(Driver& driver, const Request& request) {
    host::TForm& form = form_to_read(driver, request);
    const host::TForm* modal = driver.forms().modal();
    if (modal != nullptr && modal != &form) {
        throw Refusal(driver.forms().name_of(form) + " waits until " +
                      driver.forms().name_of(*modal) + " has been closed");
    }
    driver.forms().activate(form);
    // A form behind another comes to the front first, as the click on it would bring it.
    act(driver, [&] { form.Activate(); });
    if (!driver.forms().is_open(form)) throw Refusal("the form was closed");
    return form;
}

Target target_of(const host::TForm& form, const Request& request) {
    const std::string name = request.text("control");
    const Target target = find_target(form, name);
    if (target.control != nullptr) return target;
    throw Refusal(std::string(form.ClassName()) + " has no control \"" + name + "\"; it has " +
                  names_of(form));
}

host::TControl& control_of(const host::TForm& form, const Request& request) {
    return *target_of(form, request).control;
}

host::TDBGridEh& grid_of(const host::TForm& form, const Request& request) {
    return control_as<host::TDBGridEh>(form, request, "grid");
}

host::TTreeView& tree_of(const host::TForm& form, const Request& request) {
    return control_as<host::TTreeView>(form, request, "tree");
}

std::vector<host::TControl*> controls_of(const host::TForm& form) {
    std::vector<host::TControl*> controls;
    for (host::TComponent* part : form.components())
        if (host::TControl* control = as_control(form, *part)) controls.push_back(control);
    return controls;
}

int column_of(const host::TDBGridEh& grid, const std::string& field) {
    std::string fields;
    for (std::size_t at = 0; at < grid.Columns.size(); ++at) {
        if (host::same_text(grid.Columns[at].FieldName, field)) return static_cast<int>(at);
        fields += (fields.empty() ? "" : ", ") + grid.Columns[at].FieldName;
    }
    throw Refusal(grid.Name() + " has no column \"" + field + "\"; it has " + fields);
}

int row_count(const host::TDBGridEh& grid) {
    return grid.DataSet != nullptr && grid.DataSet->Active() ? grid.DataSet->RecordCount() : 0;
}

} // namespace automation
