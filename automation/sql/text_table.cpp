// Widths and alignment of a printed table.
#include "automation/sql/text_table.h"

#include <algorithm>

namespace automation {

namespace {

// Columns of a terminal: everything from the Hangul letters on is taken as double width, which
// holds for Chinese text and punctuation; continuation bytes count nothing.
std::size_t width_of(std::string_view text) {
    std::size_t width = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0) == 0x80) continue;
        width += byte >= 0xE2 ? 2 : 1;
    }
    return width;
}

bool is_number(std::string_view text) {
    return !text.empty() && text.find_first_not_of("+-.0123456789") == std::string_view::npos;
}

std::string one_line(const TextCell& cell) {
    if (!cell) return "NULL";
    std::string text = *cell;
    const auto breaks = [](char c) { return c == '\n' || c == '\r' || c == '\t'; };
    std::replace_if(text.begin(), text.end(), breaks, ' ');
    return text;
}

struct ColumnShape {
    std::size_t width = 0;
    bool numbers = true;
};

std::vector<ColumnShape> shapes_of(const ResultSet& set) {
    std::vector<ColumnShape> shapes(set.columns.size());
    for (std::size_t i = 0; i < shapes.size(); ++i) shapes[i].width = width_of(set.columns[i]);
    for (const TextRow& row : set.rows)
        for (std::size_t i = 0; i < shapes.size(); ++i) {
            shapes[i].width = std::max(shapes[i].width, width_of(one_line(row[i])));
            if (row[i] && !is_number(*row[i])) shapes[i].numbers = false;
        }
    return shapes;
}

void print_cell(const std::string& text, const ColumnShape& shape, std::ostream& out) {
    const std::string room(shape.width - width_of(text), ' ');
    if (shape.numbers)
        out << room << text;
    else
        out << text << room;
}

} // namespace

void print_table(const ResultSet& set, std::ostream& out) {
    const auto shapes = shapes_of(set);
    const auto line = [&](auto&& cell_text) {
        for (std::size_t i = 0; i < shapes.size(); ++i) {
            if (i > 0) out << "  ";
            print_cell(cell_text(i), shapes[i], out);
        }
        out << '\n';
    };
    line([&](std::size_t i) { return set.columns[i]; });
    line([&](std::size_t i) { return std::string(shapes[i].width, '-'); });
    for (const TextRow& row : set.rows) line([&](std::size_t i) { return one_line(row[i]); });
}

} // namespace automation
