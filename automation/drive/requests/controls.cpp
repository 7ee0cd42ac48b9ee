// controls: what a form shows, control by control.
#include "automation/drive/requests/requests.h"

#include "automation/drive/finding.h"
#include "automation/drive/shown_value.h"
#include "host/forms/form.h"

namespace automation::requests {

namespace {

json columns_of(const host::TDBGridEh& grid) {
    json columns = json::array();
    for (std::size_t at = 0; at < grid.Columns.size(); ++at) {
        const host::GridColumn& column = grid.Columns[at];
        json shown = {{"field", column.FieldName},
                      {"title", column.Title},
                      {"readOnly", grid.ReadOnly || column.ReadOnly},
                      {"visible", column.Visible},
                      {"footer", grid.footer_text(static_cast<int>(at))}};
        if (column.Button) shown["lookup"] = true;
        if (!column.PickList.empty()) shown["items"] = column.PickList;
        columns.push_back(std::move(shown));
    }
    return columns;
}

json describe(const host::TControl& control) {
    const auto* window = dynamic_cast<const host::TWinControl*>(&control);
    json shown = {{"name", control.Name()},
                  {"class", control.ClassName()},
                  {"caption", control.Caption.get()},
                  {"value", shown_value(control)},
                  {"enabled", control.Enabled.get()},
                  {"visible", control.Visible.get()},
                  {"readOnly", window != nullptr && window->ReadOnly},
                  {"focused", window != nullptr && window->focused()}};
    if (const auto* combo = dynamic_cast<const host::TComboBox*>(&control)) {
        shown["items"] = combo->Items.get();
    }
    if (const auto* link = dynamic_cast<const host::TLinkEdit*>(&control)) {
        shown["display"] = link->DisplayName.get();
    }
    if (const auto* grid = dynamic_cast<const host::TDBGridEh*>(&control)) {
        shown["columns"] = columns_of(*grid);
        shown["rowCount"] = row_count(*grid);
    }
    return shown;
}

} // namespace

json controls(Driver& driver, const Request& request) {
    json list = json::array();
    for (const host::TControl* control : controls_of(form_to_read(driver, request))) {
        list.push_back(describe(*control));
    }
    return {{"controls", std::move(list)}};
}

} // namespace automation::requests
