// Footers of amount columns.
#include "host/forms/parts/sum_footers.h"

#include "host/controls/grid.h"
#include "host/dataset/field_names.h"

namespace host {

void add_sum_footers(TDBGridEh& grid, const std::string& fields) {
    for (const std::string& field : field_names(fields)) {
        const int index = grid.column_index(field);
        if (index < 0) continue;
        GridColumn& column = grid.Columns[static_cast<std::size_t>(index)];
        if (column.Footer == FooterKind::None) column.Footer = FooterKind::Sum;
    }
}

} // namespace host
