// Titles and columns of a sheet.
#include "host/printing/sheet.h"

#include "host/values/text.h"

namespace host {

int Sheet::column_of(const std::string& field) const {
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (same_text(columns[i].field, field)) return static_cast<int>(i);
    return -1;
}

int Sheet::title_levels() const {
    const auto grouped = [](const SheetColumn& column) { return !upper_title(column).empty(); };
    return std::any_of(columns.begin(), columns.end(), grouped) ? 2 : 1;
}

Sheet for_paper(Sheet sheet) {
    std::vector<int> kept;
    for (std::size_t i = 0; i < sheet.columns.size(); ++i)
        if (!sheet.columns[i].in_files_only) kept.push_back(static_cast<int>(i));
    if (kept.size() == sheet.columns.size()) return sheet;
    std::vector<SheetColumn> columns;
    std::vector<SheetCell> footers;
    for (const int column : kept) {
        columns.push_back(sheet.columns[static_cast<std::size_t>(column)]);
        if (!sheet.footers.empty())
            footers.push_back(sheet.footers[static_cast<std::size_t>(column)]);
    }
    sheet.columns = std::move(columns);
    sheet.footers = std::move(footers);
    sheet.cell = [kept, all = std::move(sheet.cell)](int row, int column) {
        return all(row, kept[static_cast<std::size_t>(column)]);
    };
    return sheet;
}

std::string upper_title(const SheetColumn& column) {
    const std::size_t bar = column.title.find('|');
    return bar == std::string::npos ? "" : column.title.substr(0, bar);
}

std::string lower_title(const SheetColumn& column) {
    const std::size_t bar = column.title.find('|');
    return bar == std::string::npos ? column.title : column.title.substr(bar + 1);
}

} // namespace host
