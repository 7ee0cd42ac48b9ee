// Fits the columns of a sheet to a sheet of paper.
#include "host/printing/table_columns.h"

#include <numeric>

#include "host/values/text.h"

namespace host {

namespace {

constexpr PaperSize upright = {21000, 29700}; // A4
constexpr PaperSize across = {29700, 21000};
constexpr int character = 170; // a digit of 9 points
constexpr int padding = 220;   // left and right of a text together
constexpr int usual_size = 90, smallest_size = 55, usual_row = 600;
constexpr int rows_measured = 300, widest_by_content = 44;
constexpr int least_of_filler = 18, most_of_filler = 26;

// Titles are set smaller before they make a column wider than what stands in it.
int title_characters(const SheetColumn& column) {
    return wide_characters(lower_title(column)) * 9 / 10;
}

int content_characters(const Sheet& sheet, int column) {
    int widest = 0;
    for (int row = 0; row < std::min(sheet.rows, rows_measured); ++row)
        widest = std::max(widest, wide_characters(sheet.cell(row, column).text));
    return std::min(widest, widest_by_content);
}

int natural_width(const Sheet& sheet, int index) {
    const SheetColumn& column = sheet.columns[static_cast<std::size_t>(index)];
    int characters = column.width;
    if (characters <= 0) characters = content_characters(sheet, index);
    // Long summaries stand in two lines before the paper is turned for them.
    if (column.width < 0) characters = std::clamp(characters, least_of_filler, most_of_filler);
    return std::max(characters, title_characters(column)) * character + padding;
}

// What is left goes to the column that asks for it, else to all in proportion; what is missing is
// taken from all.
void fill(std::vector<int>& widths, const Sheet& sheet, int room) {
    const int used = std::accumulate(widths.begin(), widths.end(), 0);
    const auto filler = std::find_if(sheet.columns.begin(), sheet.columns.end(),
                                     [](const SheetColumn& column) { return column.width < 0; });
    if (used < room && filler != sheet.columns.end()) {
        widths[static_cast<std::size_t>(filler - sheet.columns.begin())] += room - used;
        return;
    }
    int given = 0;
    for (int& width : widths) given += width = static_cast<int>(std::int64_t{width} * room / used);
    if (!widths.empty()) widths.back() += room - given;
}

} // namespace

int TableColumns::width() const { return std::accumulate(widths.begin(), widths.end(), 0); }

int wide_characters(const std::string& text) {
    int count = 0;
    for (const char32_t one : to_characters(text)) count += one < 0x2000 ? 1 : 2;
    return count;
}

TableColumns columns_on_paper(const Sheet& sheet) {
    TableColumns columns;
    for (int i = 0; i < static_cast<int>(sheet.columns.size()); ++i)
        columns.widths.push_back(natural_width(sheet, i));
    const int natural = columns.width();
    const auto room_on = [](PaperSize paper) { return paper.width - 2 * paper_margin; };
    // A list that is a little too wide is set a little smaller before the paper is turned; a
    // statement much smaller, for it has many lines.
    const int tolerated = sheet.one_page ? 14 : 11;
    columns.paper = natural * 10 <= room_on(upright) * tolerated ? upright : across;
    columns.left = paper_margin;
    const int room = room_on(columns.paper);
    if (natural > room)
        columns.size = std::max(usual_size * room / natural, smallest_size);
    columns.row_height = std::max(usual_row * columns.size / usual_size, usual_row * 7 / 10);
    fill(columns.widths, sheet, room);
    return columns;
}

} // namespace host
