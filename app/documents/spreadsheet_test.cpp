// Spreadsheets read back: what each cell is, not only what it looks like.
#include "app/documents/spreadsheet.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <regex>

#include "tests/support/temporary_folder.h"

namespace app {

namespace {

using host::Amount;
using host::Sheet;
using host::SheetCell;
using host::Value;

// A workbook taken apart: the parts are XML in an archive.
class Workbook {
public:
    explicit Workbook(std::string path) : path_(std::move(path)) {
        sheet = part("xl/worksheets/sheet1.xml");
        styles_ = part("xl/styles.xml");
        const std::string strings = part("xl/sharedStrings.xml");
        static const std::regex one("<si><t[^>]*>([^<]*)</t></si>");
        for (std::sregex_iterator at(strings.begin(), strings.end(), one), end; at != end; ++at)
            strings_.push_back((*at)[1]);
    }
    std::string part(const std::string& name) const {
        std::string text;
        std::FILE* pipe = ::popen(("unzip -p '" + path_ + "' " + name).c_str(), "r");
        char buffer[4096];
        for (std::size_t n; (n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;)
            text.append(buffer, n);
        ::pclose(pipe);
        return text;
    }
    // "text 0100", "number 12.5", "flag 1", "empty"; the format of a number behind it.
    std::string cell(const std::string& name) const {
        const std::regex form("<c r=\"" + name + "\"([^>]*)><v>([^<]*)</v></c>");
        std::smatch found;
        if (!std::regex_search(sheet, found, form)) return "empty";
        const std::string marks = found[1], value = found[2];
        if (marks.find("t=\"s\"") != std::string::npos)
            return "text " + strings_.at(std::stoul(value));
        if (marks.find("t=\"b\"") != std::string::npos) return "flag " + value;
        // A spreadsheet keeps 15 digits of what stands in the file.
        char number[32];
        std::snprintf(number, sizeof number, "%.15g", std::strtod(value.c_str(), nullptr));
        return "number " + std::string(number) + " " + format_of(marks);
    }
    std::string sheet;

private:
    std::string format_of(const std::string& marks) const {
        std::smatch style;
        if (!std::regex_search(marks, style, std::regex("s=\"(\\d+)\""))) return "General";
        const std::size_t formats = styles_.find("<cellXfs");
        static const std::regex one("<xf numFmtId=\"(\\d+)\"");
        std::sregex_iterator at(styles_.begin() + static_cast<std::ptrdiff_t>(formats),
                                styles_.end(), one);
        std::advance(at, std::stol(style[1]));
        const std::string id = (*at)[1];
        if (id == "0") return "General";
        const std::regex code("<numFmt numFmtId=\"" + id + "\" formatCode=\"([^\"]*)\"");
        std::smatch found;
        return std::regex_search(styles_, found, code) ? found[1].str() : "built-in " + id;
    }
    std::string path_, styles_;
    std::vector<std::string> strings_;
};

const std::string money_format = "#,##0.00;[Red]-#,##0.00";

struct Spreadsheet : ::testing::Test {
    Spreadsheet() {
        sheet.title = "明细 / 帐";
        sheet.conditions = {"会计期间: 2024-03"};
        sheet.columns = {{.field = "KM_ID", .title = "科目", .width = 12},
                         {.field = "BDATE", .title = "日期", .width = 11, .format = "yyyy-mm-dd"},
                         {.field = "J", .title = "借方", .width = 14, .amount = true,
                          .format = "0.00"},
                         {.field = "N", .title = "张数", .width = 5},
                         {.field = "T", .title = "审核", .width = 5, .check_box = true},
                         {.field = "E", .title = "时间", .width = 20}};
        sheet.cell = [this](int row, int column) {
            return rows.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
        };
    }
    void add(const std::string& code, const char* day, const char* amount, int count, bool flag) {
        rows.push_back({{Value{code}, code},
                        {Value{*host::DateTime::parse(day)}, day},
                        {Value{*Amount::parse(amount)}, amount},
                        {Value{std::int64_t{count}}, std::to_string(count)},
                        {Value{std::int64_t{flag}}, flag ? "1" : "0"},
                        {Value{*host::DateTime::parse("2024-03-05 12:00:00")}, "中午"}});
        sheet.rows = static_cast<int>(rows.size());
    }
    Workbook written() {
        EXPECT_EQ(write_spreadsheet(sheet, file), "");
        return Workbook(file);
    }
    tests::TemporaryFolder folder;
    std::string file = folder.file("a.xlsx");
    std::vector<std::vector<SheetCell>> rows;
    Sheet sheet;
};

} // namespace

TEST_F(Spreadsheet, every_cell_keeps_its_type) {
    add("0100", "2024-03-05", "-1234567.5", 3, true);
    const Workbook book = written();
    EXPECT_EQ(book.cell("A1"), "text 科目");
    EXPECT_EQ(book.cell("A2"), "text 0100");
    EXPECT_EQ(book.cell("B2"), "number 45356 yyyy-mm-dd"); // days since 1899-12-30
    EXPECT_EQ(book.cell("C2"), "number -1234567.5 " + money_format);
    EXPECT_EQ(book.cell("D2"), "number 3 General");
    EXPECT_EQ(book.cell("E2"), "flag 1");
    EXPECT_EQ(book.cell("F2"), "number 45356.5 yyyy-mm-dd hh:mm:ss");
}

TEST_F(Spreadsheet, amounts_are_exact_to_the_cent) {
    for (const char* amount : {"0.1", "0.07", "1234567890123.45", "-0.01", "99999.99"})
        add("1", "2024-03-05", amount, 0, false);
    const Workbook book = written();
    EXPECT_EQ(book.cell("C2"), "number 0.1 " + money_format);
    EXPECT_EQ(book.cell("C3"), "number 0.07 " + money_format);
    EXPECT_EQ(book.cell("C4"), "number 1234567890123.45 " + money_format);
    EXPECT_EQ(book.cell("C5"), "number -0.01 " + money_format);
    EXPECT_EQ(book.cell("C6"), "number 99999.99 " + money_format);
}

TEST_F(Spreadsheet, what_is_empty_stays_empty_and_what_looks_like_a_formula_stays_a_text) {
    add("=1+1", "2024-03-05", "1", 0, false);
    rows[0][2] = {};
    const Workbook book = written();
    EXPECT_EQ(book.cell("A2"), "text =1+1");
    EXPECT_EQ(book.cell("C2"), "empty");
    EXPECT_EQ(book.sheet.find("<f>"), std::string::npos);
}

TEST_F(Spreadsheet, grouped_titles_take_two_rows_and_the_head_is_frozen) {
    add("1001", "2024-03-05", "1", 0, false);
    sheet.columns[2].title = "金额|借方";
    sheet.columns[3].title = "金额|张数";
    const Workbook book = written();
    EXPECT_EQ(book.cell("A1"), "text 科目");
    EXPECT_EQ(book.cell("C1"), "text 金额");
    EXPECT_EQ(book.cell("C2"), "text 借方");
    EXPECT_EQ(book.cell("D2"), "text 张数");
    EXPECT_EQ(book.cell("A3"), "text 1001");
    for (const char* merged : {"C1:D1", "A1:A2"})
        EXPECT_NE(book.sheet.find("<mergeCell ref=\"" + std::string(merged) + "\""),
                  std::string::npos)
            << merged;
    EXPECT_NE(book.sheet.find("<pane ySplit=\"2\""), std::string::npos);
}

TEST_F(Spreadsheet, footers_are_values_below_the_rows) {
    add("1001", "2024-03-05", "1.5", 0, false);
    sheet.footers.resize(6);
    sheet.footers[0] = {Value{std::string("合计")}, "合计", false, true};
    sheet.footers[2] = {Value{*Amount::parse("1.5")}, "1.50", false, true};
    const Workbook book = written();
    EXPECT_EQ(book.cell("A3"), "text 合计");
    EXPECT_EQ(book.cell("C3"), "number 1.5 " + money_format);
}

TEST_F(Spreadsheet, columns_have_the_width_of_the_screen_and_the_page_a_name_that_is_allowed) {
    add("1001", "2024-03-05", "1", 0, false);
    const Workbook book = written();
    EXPECT_NE(book.sheet.find("<col min=\"1\" max=\"1\" width=\"14.7"), std::string::npos)
        << book.sheet.substr(0, 900);
    EXPECT_NE(book.part("xl/workbook.xml").find("name=\"明细帐\""), std::string::npos);
    EXPECT_NE(book.part("docProps/core.xml").find("会计期间: 2024-03"), std::string::npos);
}

TEST_F(Spreadsheet, a_file_that_cannot_be_written_is_told) {
    add("1001", "2024-03-05", "1", 0, false);
    EXPECT_EQ(write_spreadsheet(sheet, folder.file("none/a.xlsx")),
              "文件“" + folder.file("none/a.xlsx") +
                  "”不能写入，请换一个位置，或关闭正在使用它的程序后再试。");
}

TEST_F(Spreadsheet, more_rows_than_a_page_has_are_refused_with_a_way_out) {
    sheet.rows = 1'048'575;
    EXPECT_EQ(write_spreadsheet(sheet, file),
              "共 1048575 行，超过了 Excel 工作簿的 1048576 行，请缩小查询条件，"
              "或导出为 csv 文件。");
}

TEST_F(Spreadsheet, a_long_list_is_written_through_with_its_titles_in_one_row) {
    add("1001", "2024-03-05", "1", 0, false);
    sheet.columns[2].title = "金额|借方";
    sheet.rows = 60'000;
    sheet.cell = [this](int, int column) { return rows[0].at(static_cast<std::size_t>(column)); };
    const Workbook book = written();
    EXPECT_NE(book.sheet.find("金额 借方"), std::string::npos);
    EXPECT_EQ(book.cell("C60001"), "number 1 " + money_format);
}

} // namespace app
