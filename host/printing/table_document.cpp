// Sets a sheet as pages of a ruled table.
#include "host/printing/table_document.h"

#include "host/printing/table_lines.h"
#include "host/values/text.h"

namespace host {

namespace {

constexpr int top = 1300, bottom = 1500; // margins
constexpr int title_height = 1000, words_height = 560, condition_height = 480, title_level = 620;
constexpr int foot_height = 500;
constexpr int thick = 30, thin = 9, middle = 18;
constexpr int words_size = 90, foot_size = 80;
constexpr int signature_height = 900;
constexpr int lowest_row = 370;    // of a statement on one page
constexpr int largest_in_row = 18; // tenths of a point a millimetre of row

int lines_of(const TablePage& page) {
    return page.count + (page.carried_in ? 1 : 0) + (page.carried_out ? 1 : 0) +
           (page.footers ? 1 : 0);
}

} // namespace

TableDocument::TableDocument(Sheet sheet, PaperWords words)
    : sheet_(std::move(sheet)), words_(std::move(words)), columns_(columns_on_paper(sheet_)) {
    if (sheet_.one_page) fit_one_page();
    pages_ = break_into_pages(sheet_, lines_a_page());
}

// ---- places ----

int TableDocument::table_top() const {
    const int accounts = sheet_.carried && sheet_.carried->account ? words_height : 0;
    return top + title_height + words_height + accounts +
           condition_height * static_cast<int>(sheet_.conditions.size()) + 60;
}

int TableDocument::head_height() const { return title_level * sheet_.title_levels(); }

// Signatures stand between the table and the foot of the page.
int TableDocument::foot_top() const {
    return columns_.paper.height - bottom - (sheet_.signatures.empty() ? 0 : signature_height);
}

int TableDocument::lines_a_page() const {
    return std::max(4, (foot_top() - table_top() - head_height()) / columns_.row_height);
}

// Lower rows first, then smaller type, as long as it can be read.
void TableDocument::fit_one_page() {
    const int lines = sheet_.rows + (sheet_.footers.empty() ? 0 : 1);
    if (lines <= lines_a_page()) return;
    const int height = (foot_top() - table_top() - head_height()) / lines;
    if (height < lowest_row) return;
    columns_.row_height = height;
    columns_.size = std::min(columns_.size, height * largest_in_row / 100);
}

int TableDocument::left_of(int column) const {
    int left = columns_.left;
    for (int i = 0; i < column; ++i) left += columns_.widths[static_cast<std::size_t>(i)];
    return left;
}

// ---- what stands around the table ----

PaperPage TableDocument::page(int number) const {
    const TablePage& shown = pages_.at(static_cast<std::size_t>(number));
    PaperPage page;
    draw_words(page, shown);
    draw_titles(page);
    draw_rows(page, shown);
    draw_rules(page, shown);
    draw_foot(page, number);
    if (number + 1 == page_count()) draw_signatures(page, lines_of(shown));
    return page;
}

void TableDocument::draw_words(PaperPage& page, const TablePage& shown) const {
    const int left = columns_.left, width = columns_.width();
    int y = top;
    page.texts.push_back({.box = {left, y, width, title_height},
                          .text = sheet_.title,
                          .align = Alignment::Center,
                          .size = 170,
                          .bold = true,
                          .serif = true,
                          .spacing = 220});
    y += title_height;
    const auto line = [&](const std::string& text, int height, Alignment align, Ink ink) {
        page.texts.push_back({.box = {left, y, width, height}, .text = text, .align = align,
                              .size = words_size, .ink = ink});
    };
    if (!words_.company.empty())
        line("单位：" + words_.company, words_height, Alignment::Left, Ink::Black);
    const bool money = std::any_of(sheet_.columns.begin(), sheet_.columns.end(),
                                   [](const SheetColumn& column) { return column.amount; });
    if (money) line("金额单位：元", words_height, Alignment::Right, Ink::Black);
    y += words_height;
    for (const std::string& condition : sheet_.conditions) {
        line(trimmed(condition), condition_height, Alignment::Left, Ink::Grey);
        y += condition_height;
    }
    if (sheet_.carried && sheet_.carried->account && sheet_.rows > 0)
        line("科目：" + sheet_.carried->account(shown.first), words_height, Alignment::Left,
             Ink::Black);
}

void TableDocument::draw_signatures(PaperPage& page, int lines) const {
    const int count = static_cast<int>(sheet_.signatures.size());
    const int y = table_top() + head_height() + lines * columns_.row_height + 250;
    for (int i = 0; i < count; ++i) {
        const int width = columns_.width() / count;
        page.texts.push_back({.box = {columns_.left + i * width, y, width, words_height},
                              .text = sheet_.signatures[static_cast<std::size_t>(i)] + "：",
                              .size = words_size});
    }
}

void TableDocument::draw_foot(PaperPage& page, int number) const {
    const int y = columns_.paper.height - bottom + 150;
    const auto part = [&](const std::string& text, Alignment align) {
        page.texts.push_back({.box = {columns_.left, y, columns_.width(), foot_height},
                              .text = text, .align = align, .size = foot_size, .ink = Ink::Grey});
    };
    part("制表：" + words_.maker, Alignment::Left);
    part("第 " + std::to_string(number + 1) + " 页  共 " + std::to_string(page_count()) + " 页",
         Alignment::Center);
    part("打印 " + words_.moment, Alignment::Right);
}

// ---- the table ----

void TableDocument::draw_titles(PaperPage& page) const {
    const int levels = sheet_.title_levels();
    const auto title = [&](int from, int to, int first_level, int height, const std::string& text) {
        page.texts.push_back({.box = {left_of(from) + 60, table_top() + first_level * title_level,
                                      left_of(to) - left_of(from) - 120, height * title_level},
                              .text = text, .align = Alignment::Center, .size = columns_.size});
    };
    const int count = static_cast<int>(sheet_.columns.size());
    for (int i = 0; i < count; ++i) {
        const SheetColumn& column = sheet_.columns[static_cast<std::size_t>(i)];
        if (upper_title(column).empty()) {
            title(i, i + 1, 0, levels, column.title);
            continue;
        }
        title(i, i + 1, 1, 1, lower_title(column));
        const TitleGroup group = title_group(sheet_, i);
        if (group.first != i) continue;
        title(group.first, group.end, 0, 1, upper_title(column));
        page.across(left_of(group.first), left_of(group.end), table_top() + title_level, thin,
                    Ink::Grey);
    }
}

void TableDocument::draw_cell(PaperPage& page, int line, int column, const SheetCell& cell) const {
    const SheetColumn& shown = sheet_.columns[static_cast<std::size_t>(column)];
    const std::string text = text_on_paper(shown, cell);
    if (text.empty()) return;
    PaperText placed;
    placed.box = {left_of(column) + 100,
                  table_top() + head_height() + line * columns_.row_height,
                  columns_.widths[static_cast<std::size_t>(column)] - 200, columns_.row_height};
    placed.text = text;
    placed.align = shown.align;
    placed.size = columns_.size;
    placed.bold = cell.bold;
    placed.ink = cell.red ? Ink::Red : shown.amount && is_zero(cell) ? Ink::Pale : Ink::Black;
    page.texts.push_back(std::move(placed));
}

// The sums so far and the balance reached: that of the last row above.
void TableDocument::draw_carried(PaperPage& page, int line, const char* words,
                                 const SumsSoFar& sums, int last_row) const {
    const CarriedSums& carried = *sheet_.carried;
    const int label = std::max(sheet_.column_of(carried.label), 0);
    draw_cell(page, line, label, {.text = words, .bold = true});
    for (std::size_t i = 0; sums && i < carried.added.size(); ++i) {
        const int column = sheet_.column_of(carried.added[i]);
        if (column < 0) continue;
        const SheetColumn& shown = sheet_.columns[static_cast<std::size_t>(column)];
        const Value sum{(*sums)[i]};
        draw_cell(page, line, column,
                  {sum, formatted(sum, shown.format), (*sums)[i].is_negative(), true});
    }
    for (const std::string& field : carried.copied) {
        const int column = sheet_.column_of(field);
        if (column < 0 || column == label) continue;
        SheetCell cell = sheet_.cell(last_row, column);
        cell.bold = true;
        draw_cell(page, line, column, cell);
    }
}

void TableDocument::draw_rows(PaperPage& page, const TablePage& shown) const {
    const int columns = static_cast<int>(sheet_.columns.size());
    int line = 0;
    if (shown.carried_in) draw_carried(page, line++, "承前页", shown.in, shown.first - 1);
    for (int row = shown.first; row < shown.first + shown.count; ++row, ++line)
        for (int column = 0; column < columns; ++column)
            draw_cell(page, line, column, sheet_.cell(row, column));
    if (shown.carried_out)
        draw_carried(page, line, "过次页", shown.out, shown.first + shown.count - 1);
    if (!shown.footers) return;
    for (int column = 0; column < columns; ++column)
        draw_cell(page, line, column, sheet_.footers[static_cast<std::size_t>(column)]);
}

void TableDocument::draw_rules(PaperPage& page, const TablePage& shown) const {
    const int lines = lines_of(shown);
    const int left = columns_.left, right = left + columns_.width();
    const int first = table_top(), rows = first + head_height();
    const int end = rows + lines * columns_.row_height;
    for (int line = 1; line < lines; ++line)
        page.across(left, right, rows + line * columns_.row_height,
                    line == lines - 1 && shown.footers ? middle : thin, Ink::Grey);
    for (int i = 1; i < static_cast<int>(sheet_.columns.size()); ++i) {
        const bool inside = sheet_.title_levels() > 1 && title_group(sheet_, i).first != i;
        page.down(left_of(i), inside ? first + title_level : first, end, thin, Ink::Grey);
    }
    page.across(left, right, rows, middle);
    for (const int y : {first, end}) page.across(left, right, y, thick);
    for (const int x : {left, right}) page.down(x, first, end, thick);
}

} // namespace host
