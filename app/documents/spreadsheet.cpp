// Writes cells by their types and gives them the formats of the grid.
#include "app/documents/spreadsheet.h"

#include <xlsxwriter.h>

#include <cstdlib>
#include <map>
#include <tuple>

#include "host/forms/parts/long_work.h"
#include "host/forms/parts/sheet_export.h"
#include "host/ports/document_files.h"
#include "host/printing/table_columns.h"
#include "host/printing/table_lines.h"
#include "host/values/text.h"

namespace app {

namespace {

using host::Alignment;

constexpr int most_rows = 1'048'576; // of a page, the titles among them
constexpr int rows_in_memory = 50'000;
constexpr int measured_rows = 300, widest = 60, narrowest = 6;
constexpr std::size_t longest_text = 32'767, longest_name = 31;
constexpr lxw_color_t head_ground = 0xF2EFE8, rule = 0xB3AC9C;

enum class Kind { Text, Number, Day, Moment, Head };

// "0.00" → thousands parted, negative red; a count stays plain.
std::string number_format(const host::SheetColumn& column) {
    const std::string& format = column.format;
    const bool pattern =
        !format.empty() && format.find_first_not_of("0#,.") == std::string::npos;
    if (!column.amount) return pattern ? format : "General";
    const std::size_t point = format.find('.');
    const std::string amount =
        "#,##0" + (pattern && point != std::string::npos ? format.substr(point) : "");
    return amount + ";[Red]-" + amount;
}

// The formats of one workbook, each made once.
class Formats {
public:
    explicit Formats(lxw_workbook* book) : book_(book) {}

    lxw_format* of(Kind kind, const host::SheetColumn& column, bool bold, bool red) {
        const std::string pattern = kind == Kind::Number ? number_format(column) : "";
        lxw_format*& format = made_[{kind, column.align, pattern, bold, red}];
        if (format == nullptr) format = make(kind, column, bold, red);
        return format;
    }

private:
    lxw_format* make(Kind kind, const host::SheetColumn& column, bool bold, bool red) {
        lxw_format* format = workbook_add_format(book_);
        format_set_align(format, LXW_ALIGN_VERTICAL_CENTER);
        if (bold) format_set_bold(format);
        if (red) format_set_font_color(format, LXW_COLOR_RED);
        switch (kind) {
        case Kind::Text: format_set_num_format(format, "@"); break;
        case Kind::Number: format_set_num_format(format, number_format(column).c_str()); break;
        case Kind::Day: format_set_num_format(format, "yyyy-mm-dd"); break;
        case Kind::Moment: format_set_num_format(format, "yyyy-mm-dd hh:mm:ss"); break;
        case Kind::Head:
            format_set_bg_color(format, head_ground);
            format_set_border(format, LXW_BORDER_THIN);
            format_set_border_color(format, rule);
            format_set_align(format, LXW_ALIGN_CENTER);
            return format;
        }
        if (column.align == Alignment::Center || column.check_box)
            format_set_align(format, LXW_ALIGN_CENTER);
        if (column.align == Alignment::Right) format_set_align(format, LXW_ALIGN_RIGHT);
        return format;
    }
    lxw_workbook* book_;
    std::map<std::tuple<Kind, Alignment, std::string, bool, bool>, lxw_format*> made_;
};

class Writer {
public:
    Writer(const host::Sheet& sheet, const std::string& path) : sheet_(sheet) {
        lxw_workbook_options options{};
        options.constant_memory = in_one_pass() ? LXW_TRUE : LXW_FALSE;
        book_ = workbook_new_opt(path.c_str(), &options);
        formats_ = std::make_unique<Formats>(book_);
        page_ = workbook_add_worksheet(book_, sheet_name().c_str());
        if (page_ == nullptr) page_ = workbook_add_worksheet(book_, nullptr);
    }

    std::string write(const std::string& path) {
        set_up_page();
        titles();
        int line = head_rows();
        host::LongWork work("正在导出…", sheet_.rows);
        for (int row = 0; row < sheet_.rows; ++row, ++line) {
            for (int i = 0; i < columns(); ++i) cell(line, i, sheet_.cell(row, i));
            if (work.step()) continue;
            lxw_workbook_free(book_); // the file is only written at the end
            return host::export_stopped;
        }
        for (int i = 0; !sheet_.footers.empty() && i < columns(); ++i)
            cell(line, i, sheet_.footers[static_cast<std::size_t>(i)]);
        return workbook_close(book_) == LXW_NO_ERROR ? "" : host::cannot_write(path);
    }

private:
    int columns() const { return static_cast<int>(sheet_.columns.size()); }
    const host::SheetColumn& column(int i) const {
        return sheet_.columns[static_cast<std::size_t>(i)];
    }
    // Many rows are written through as they come; cells cannot be merged then.
    bool in_one_pass() const { return sheet_.rows > rows_in_memory; }
    int head_rows() const { return in_one_pass() ? 1 : sheet_.title_levels(); }

    // A page's name has at most 31 characters and none of []:*?/\.
    std::string sheet_name() const {
        std::string name;
        for (const char c : host::replaced(sheet_.title, " ", ""))
            if (std::string_view("[]:*?/\\'").find(c) == std::string_view::npos) name += c;
        return host::first_characters(name.empty() ? "Sheet1" : name, longest_name);
    }

    void set_up_page() {
        std::string conditions;
        for (const std::string& line : sheet_.conditions)
            conditions += (conditions.empty() ? "" : "  ") + line;
        std::string title = sheet_.title;
        lxw_doc_properties properties{};
        properties.title = title.data();
        properties.comments = conditions.data();
        workbook_set_properties(book_, &properties);
        for (int i = 0; i < columns(); ++i)
            worksheet_set_column(page_, static_cast<lxw_col_t>(i), static_cast<lxw_col_t>(i),
                                 width_of(i), nullptr);
        worksheet_freeze_panes(page_, static_cast<lxw_row_t>(head_rows()), 0);
        worksheet_set_paper(page_, 9); // A4
        if (host::columns_on_paper(sheet_).paper.width > host::PaperSize().width)
            worksheet_set_landscape(page_);
        worksheet_fit_to_pages(page_, 1, 0);
        worksheet_repeat_rows(page_, 0, static_cast<lxw_row_t>(head_rows() - 1));
        worksheet_set_header(page_, ("&C&\"-,Bold\"&14" + title).c_str());
        worksheet_set_footer(page_, "&C第 &P 页 共 &N 页");
    }

    double width_of(int i) const {
        int width = column(i).width;
        if (width <= 0) {
            width = host::wide_characters(host::lower_title(column(i)));
            for (int row = 0; row < std::min(sheet_.rows, measured_rows); ++row)
                width = std::max(width, host::wide_characters(sheet_.cell(row, i).text));
        }
        return std::clamp(width + 2, narrowest, widest);
    }

    void titles() {
        lxw_format* head = formats_->of(Kind::Head, {}, true, false);
        for (int i = 0; i < columns(); ++i) {
            if (head_rows() == 1) {
                text(0, i, host::replaced(column(i).title, "|", " "), head);
                continue;
            }
            const host::TitleGroup group = host::title_group(sheet_, i);
            const bool grouped = !host::upper_title(column(i)).empty();
            if (!grouped) {
                merge(0, i, 1, i, column(i).title, head);
            } else {
                if (group.first == i)
                    merge(0, i, 0, group.end - 1, host::upper_title(column(i)), head);
                text(1, i, host::lower_title(column(i)), head);
            }
        }
    }

    void merge(int row, int first, int last_row, int last, const std::string& words,
               lxw_format* format) {
        const auto r = static_cast<lxw_row_t>(row);
        const auto c = static_cast<lxw_col_t>(first);
        if (row == last_row && first == last) return text(row, first, words, format);
        worksheet_merge_range(page_, r, c, static_cast<lxw_row_t>(last_row),
                              static_cast<lxw_col_t>(last), words.c_str(), format);
    }

    void text(int row, int i, const std::string& words, lxw_format* format) {
        const std::string fitting = host::first_characters(words, longest_text);
        worksheet_write_string(page_, static_cast<lxw_row_t>(row), static_cast<lxw_col_t>(i),
                               fitting.c_str(), format);
    }

    void number(int row, int i, double value, lxw_format* format) {
        worksheet_write_number(page_, static_cast<lxw_row_t>(row), static_cast<lxw_col_t>(i), value,
                               format);
    }

    void cell(int row, int i, const host::SheetCell& shown) {
        const auto format = [&](Kind kind) {
            // A negative number is red by its format, also after it was changed.
            return formats_->of(kind, column(i), shown.bold, shown.red && kind == Kind::Text);
        };
        const host::Value value = typed(column(i), shown);
        if (const auto* words = std::get_if<std::string>(&value)) {
            if (!words->empty()) text(row, i, *words, format(Kind::Text));
        } else if (const auto* amount = std::get_if<host::Amount>(&value)) {
            number(row, i, std::strtod(amount->to_plain_text().c_str(), nullptr),
                   format(Kind::Number));
        } else if (const auto* whole = std::get_if<std::int64_t>(&value)) {
            number(row, i, static_cast<double>(*whole), format(Kind::Number));
        } else if (const auto* flag = std::get_if<bool>(&value)) {
            worksheet_write_boolean(page_, static_cast<lxw_row_t>(row), static_cast<lxw_col_t>(i),
                                    *flag ? 1 : 0, format(Kind::Text));
        } else if (const auto* moment = std::get_if<host::DateTime>(&value)) {
            write_moment(row, i, *moment, shown, format);
        }
    }

    // A check mark is a flag, however the form keeps it.
    static host::Value typed(const host::SheetColumn& column, const host::SheetCell& shown) {
        if (!column.check_box) return shown.value;
        return host::converted(shown.value, host::FieldType::Boolean).value_or(shown.value);
    }

    // Days are counted from 1899-12-30; a day before 1900-03-01 has no number of its own there.
    template <class Format>
    void write_moment(int row, int i, host::DateTime moment, const host::SheetCell& shown,
                      Format format) {
        constexpr int from_1899_to_1970 = 25'569, first_certain = 61;
        constexpr double day = 86'400'000;
        const int days = moment.date.days() + from_1899_to_1970;
        if (days < first_certain) return text(row, i, shown.text, format(Kind::Text));
        const bool whole = column(i).format == "yyyy-mm-dd" || moment.milliseconds == 0;
        number(row, i, whole ? days : days + moment.milliseconds / day,
               format(whole ? Kind::Day : Kind::Moment));
    }

    const host::Sheet& sheet_;
    lxw_workbook* book_ = nullptr;
    lxw_worksheet* page_ = nullptr;
    std::unique_ptr<Formats> formats_;
};

} // namespace

std::string write_spreadsheet(const host::Sheet& sheet, const std::string& path) {
    if (sheet.rows + sheet.title_levels() + 1 > most_rows)
        return "共 " + std::to_string(sheet.rows) +
               " 行，超过了 Excel 工作簿的 1048576 行，请缩小查询条件，或导出为 csv 文件。";
    return Writer(sheet, path).write(path);
}

} // namespace app
