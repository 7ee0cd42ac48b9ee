// Column order and width as one line of settings: "KM_ID:12;KM_NAME:30".
#include "host/forms/parts/column_memory.h"

#include <charconv>

#include "host/contract/U_glo.h"
#include "host/controls/grid.h"
#include "host/forms/form.h"
#include "host/ports/host.h"
#include "host/values/text.h"

namespace host {

namespace {

std::string setting_of(const TDBGridEh& grid) {
    return grid.form()->FormName() + "." + grid.Name() + ".Columns";
}

std::string as_line(const std::vector<GridColumn>& columns) {
    std::string line;
    for (const GridColumn& column : columns)
        line += (line.empty() ? "" : ";") + column.FieldName + ":" + std::to_string(column.Width);
    return line;
}

bool take_column(std::string_view item, std::vector<GridColumn>& from,
                 std::vector<GridColumn>& to) {
    const std::size_t colon = item.find(':');
    if (colon == std::string_view::npos) return false;
    for (std::size_t i = 0; i < from.size(); ++i) {
        if (!same_text(from[i].FieldName, item.substr(0, colon))) continue;
        const std::string_view width = item.substr(colon + 1);
        std::from_chars(width.data(), width.data() + width.size(), from[i].Width);
        to.push_back(std::move(from[i]));
        from.erase(from.begin() + static_cast<std::ptrdiff_t>(i));
        return true;
    }
    return false;
}

} // namespace

void restore_columns(TDBGridEh& grid) {
    SettingsStore* settings = the_host().settings;
    if (settings == nullptr || grid.form() == nullptr) return;
    const std::string kept = settings->read(G_CoName, setting_of(grid), "");
    std::vector<GridColumn> from = grid.Columns, ordered;
    for (std::size_t at = 0; at < kept.size();) {
        const std::size_t end = std::min(kept.find(';', at), kept.size());
        if (!take_column(std::string_view(kept).substr(at, end - at), from, ordered)) return;
        at = end + 1;
    }
    if (ordered.empty() || !from.empty()) return;
    grid.Columns = std::move(ordered);
    grid.changed();
}

void keep_columns(const TDBGridEh& grid) {
    SettingsStore* settings = the_host().settings;
    if (settings == nullptr || grid.form() == nullptr || grid.Columns.empty()) return;
    const std::string line = as_line(grid.Columns);
    if (settings->read(G_CoName, setting_of(grid), "") != line)
        settings->write(G_CoName, setting_of(grid), line);
}

} // namespace host
