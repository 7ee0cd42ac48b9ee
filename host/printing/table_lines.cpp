// Cells as texts on paper.
#include "host/printing/table_lines.h"

#include "host/values/text.h"

namespace host {

namespace {

bool is_plain_amount(const std::string& text) {
    const std::size_t first = text.starts_with('-') ? 1 : 0;
    return text.size() > first &&
           text.find_first_not_of("0123456789.", first) == std::string::npos &&
           text[first] != '.';
}

std::string parted(std::string text) {
    if (!is_plain_amount(text)) return text;
    const std::size_t first = text.starts_with('-') ? 1 : 0;
    for (std::size_t at = std::min(text.find('.'), text.size()); at > first + 3;)
        text.insert(at -= 3, ",");
    return text;
}

bool is_set(const SheetCell& cell) {
    const auto flag = converted(cell.value, FieldType::Boolean);
    return flag && !is_null(*flag) && std::get<bool>(*flag);
}

} // namespace

TitleGroup title_group(const Sheet& sheet, int column) {
    const auto upper = [&](int i) {
        return upper_title(sheet.columns[static_cast<std::size_t>(i)]);
    };
    const std::string name = upper(column);
    TitleGroup group{column, column + 1};
    if (name.empty()) return group;
    while (group.first > 0 && upper(group.first - 1) == name) --group.first;
    while (group.end < static_cast<int>(sheet.columns.size()) && upper(group.end) == name)
        ++group.end;
    return group;
}

std::string text_on_paper(const SheetColumn& column, const SheetCell& cell) {
    if (column.check_box) return is_set(cell) ? "√" : "";
    return column.amount ? parted(cell.text) : cell.text;
}

bool is_zero(const SheetCell& cell) {
    if (const auto* amount = std::get_if<Amount>(&cell.value)) return amount->is_zero();
    const auto* whole = std::get_if<std::int64_t>(&cell.value);
    return whole != nullptr && *whole == 0;
}

} // namespace host
