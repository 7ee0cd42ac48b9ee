// Footers of amount columns.
#include "host/forms/parts/sum_footers.h"

#include "host/controls/grid.h"
#include "host/values/text.h"

namespace host {

std::vector<std::string> field_names(const std::string& list) {
    std::vector<std::string> names;
    for (std::size_t at = 0; at < list.size();) {
        const std::size_t end = std::min(list.find(',', at), list.size());
        const std::string name = trimmed(list.substr(at, end - at));
        if (!name.empty()) names.push_back(name);
        at = end + 1;
    }
    return names;
}

void add_sum_footers(TDBGridEh& grid, const std::string& fields) {
    for (const std::string& field : field_names(fields)) {
        const int index = grid.column_index(field);
        if (index < 0) continue;
        GridColumn& column = grid.Columns[static_cast<std::size_t>(index)];
        if (column.Footer == FooterKind::None) column.Footer = FooterKind::Sum;
    }
}

} // namespace host
