// footer: the texts under the columns of a grid.
#include "automation/drive/requests/requests.h"

#include "automation/drive/finding.h"
#include "host/forms/form.h"
#include "host/values/text.h"

namespace automation::requests {

json footer(Driver& driver, const Request& request) {
    const host::TDBGridEh& grid = grid_of(form_to_read(driver, request), request);
    json texts = json::object();
    for (std::size_t at = 0; at < grid.Columns.size(); ++at) {
        const host::GridColumn& column = grid.Columns[at];
        if (column.Footer == host::FooterKind::None) continue;
        texts[host::upper_case(column.FieldName)] = grid.footer_text(static_cast<int>(at));
    }
    return {{"footer", std::move(texts)}};
}

} // namespace automation::requests
