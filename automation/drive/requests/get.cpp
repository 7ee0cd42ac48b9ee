// get: the value of one control.
#include "automation/drive/requests/requests.h"

#include "automation/drive/finding.h"
#include "automation/drive/shown_value.h"
#include "host/forms/form.h"

namespace automation::requests {

json get(Driver& driver, const Request& request) {
    const Target target = target_of(form_to_read(driver, request), request);
    const auto* grid = dynamic_cast<const host::TDBGridEh*>(target.control);
    if (grid == nullptr) return {{"value", shown_value(*target.control)}};
    if (row_count(*grid) == 0 || grid->Columns.empty()) return {{"value", ""}};
    const int column = target.column >= 0 ? target.column : grid->column();
    return {{"value", grid->cell_text(grid->DataSet->RecNo(), column)}};
}

} // namespace automation::requests
