// Choosing the file of an export; comma-separated values.
#include "host/forms/parts/sheet_export.h"

#include "host/contract/U_function.h"
#include "host/forms/parts/long_work.h"
#include "host/forms/parts/text_file.h"
#include "host/ports/document_files.h"
#include "host/ports/host.h"
#include "host/values/text.h"

namespace host {

namespace {

const FileKind spreadsheet = {"Excel 工作簿", "xlsx"};
const FileKind separated = {"逗号分隔的文本", "csv"};

std::string csv_field(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    return "\"" + replaced(text, "\"", "\"\"") + "\"";
}

bool is_number(const Value& value) {
    return std::holds_alternative<Amount>(value) || std::holds_alternative<std::int64_t>(value);
}

// Numbers are written without separators, so that a spreadsheet reads them as numbers.
std::string csv_text(const SheetCell& cell, const SheetColumn& column) {
    if (is_number(cell.value)) return formatted(cell.value, replaced(column.format, "#,##", ""));
    const auto* text = std::get_if<std::string>(&cell.value);
    return text != nullptr ? *text : cell.text;
}

template <class Text> void add_line(std::string& lines, const Sheet& sheet, Text text) {
    for (int i = 0; i < static_cast<int>(sheet.columns.size()); ++i) {
        if (i > 0) lines += ',';
        lines += csv_field(text(i));
    }
    lines += "\r\n";
}

const SheetColumn& column_at(const Sheet& sheet, int i) {
    return sheet.columns[static_cast<std::size_t>(i)];
}

// Nothing when the person had enough of waiting.
std::optional<std::string> csv_of(const Sheet& sheet) {
    std::string lines = "\xEF\xBB\xBF";
    add_line(lines, sheet, [&](int i) { return replaced(column_at(sheet, i).title, "|", " "); });
    LongWork work("正在导出…", sheet.rows);
    for (int row = 0; row < sheet.rows; ++row) {
        add_line(lines, sheet,
                 [&](int i) { return csv_text(sheet.cell(row, i), column_at(sheet, i)); });
        if (!work.step()) return std::nullopt;
    }
    if (!sheet.footers.empty())
        add_line(lines, sheet, [&](int i) {
            return csv_text(sheet.footers[static_cast<std::size_t>(i)], column_at(sheet, i));
        });
    return lines;
}

// The text is made before a file that is there is touched.
std::string write_csv(const Sheet& sheet, const std::string& path) {
    const auto text = csv_of(sheet);
    return text ? write_text_file(path, *text) : export_stopped;
}

void write(const Sheet& sheet, const std::string& path) {
    DocumentFiles* files = the_host().files;
    const bool typed = files != nullptr && path.size() > 5 &&
                       same_text(path.substr(path.size() - 5), "." + spreadsheet.ending);
    const std::string trouble = typed ? files->write_spreadsheet(sheet, path)
                                      : write_csv(sheet, path);
    DISPINFO(trouble.empty() ? "已导出 " + std::to_string(sheet.rows) + " 行到 " + path : trouble,
             5);
}

} // namespace

std::string sheet_as_csv(const Sheet& sheet) { return csv_of(sheet).value_or(""); }

void export_sheet(const Sheet& sheet) {
    std::vector<FileKind> kinds = {separated};
    if (the_host().files != nullptr) kinds.insert(kinds.begin(), spreadsheet);
    const auto path = the_host().ui->choose_file_to_save(
        "导出" + sheet.title, file_name(sheet.title, kinds.front().ending), kinds);
    if (path && !path->empty()) write(sheet, *path);
}

} // namespace host
