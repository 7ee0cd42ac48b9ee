// rows: what a grid shows, or the plain values behind it.
#include "automation/drive/requests/requests.h"

#include "automation/drive/finding.h"
#include "host/forms/form.h"
#include "host/values/text.h"

namespace automation::requests {

namespace {

json plain(const host::Value& value) {
    if (host::is_null(value)) return nullptr;
    if (const bool* flag = std::get_if<bool>(&value)) return *flag;
    return host::to_text(value);
}

// {"J": {"font": 255}} for the cells of the row that are painted in a colour of their own.
json colors_of(host::TDBGridEh& grid, int row) {
    json colors = json::object();
    for (std::size_t at = 0; at < grid.Columns.size(); ++at) {
        const host::CellParams params = grid.cell_params(row, static_cast<int>(at));
        json color = json::object();
        if (params.Font != host::clDefault) color["font"] = params.Font;
        if (params.Background != host::clDefault) color["background"] = params.Background;
        if (!color.empty()) colors[host::upper_case(grid.Columns[at].FieldName)] = std::move(color);
    }
    return colors;
}

json row_of(const host::TDBGridEh& grid, int row, bool raw) {
    json shown = json::object();
    const auto& fields = grid.DataSet->Fields();
    for (std::size_t at = 0; at < fields.size(); ++at) {
        const int field = static_cast<int>(at);
        shown[host::upper_case(fields[at]->FieldName)] =
            raw ? plain(grid.DataSet->value_at(row, field))
                : json(grid.DataSet->text_at(row, field));
    }
    if (raw) return shown;
    for (std::size_t at = 0; at < grid.Columns.size(); ++at) {
        if (grid.DataSet->FindField(grid.Columns[at].FieldName) == nullptr) continue;
        shown[host::upper_case(grid.Columns[at].FieldName)] =
            grid.cell_text(row, static_cast<int>(at));
    }
    return shown;
}

} // namespace

json rows(Driver& driver, const Request& request) {
    host::TDBGridEh& grid = grid_of(form_to_read(driver, request), request);
    const std::int64_t total = row_count(grid);
    const std::int64_t from = request.number_or("from", 0);
    const std::int64_t count = request.number_or("count", total);
    if (from < 0 || count < 0) throw Refusal("\"from\" and \"count\" must not be negative");
    const bool raw = request.flag_or("raw", false);
    const bool colors = request.flag_or("colors", false);
    json list = json::array();
    for (std::int64_t at = from; at < total && at - from < count; ++at) {
        const int row = static_cast<int>(at);
        json shown = row_of(grid, row, raw);
        if (colors) {
            json painted = colors_of(grid, row);
            if (!painted.empty()) shown["_colors"] = std::move(painted);
        }
        list.push_back(std::move(shown));
    }
    return {{"rows", std::move(list)}, {"total", total}};
}

} // namespace automation::requests
