// Makes a document of two datasets and prints it.
#include "host/forms/Sys_Report.h"

#include "host/forms/parts/paper_job.h"
#include "host/ports/host.h"

namespace host {

namespace {

constexpr std::size_t fields_a_line = 4;

// "单号：XS001    客户：永嘉机械", some fields a line.
std::vector<std::string> head_lines(const TClientDataSet& head) {
    std::vector<std::string> lines;
    std::size_t count = 0;
    for (const auto& field : head.Fields()) {
        if (field->DisplayLabel.empty()) continue;
        if (count++ % fields_a_line == 0) lines.emplace_back();
        std::string& line = lines.back();
        line += (line.empty() ? "" : "    ") + field->DisplayLabel + "：" + field->DisplayText();
    }
    return lines;
}

} // namespace

Sheet TFrm_Sys_Report::sheet_of_lines(TClientDataSet& lines) {
    Sheet sheet;
    std::vector<int> fields;
    for (const auto& field : lines.Fields()) {
        if (field->DisplayLabel.empty()) continue;
        SheetColumn column{.field = field->FieldName, .title = field->DisplayLabel};
        column.amount = field->Type == FieldType::Amount;
        const bool number = column.amount || field->Type == FieldType::Integer;
        column.align = number ? Alignment::Right : Alignment::Left;
        column.check_box = field->Type == FieldType::Boolean;
        column.format = field->DisplayFormat;
        sheet.columns.push_back(std::move(column));
        fields.push_back(field->index());
    }
    sheet.rows = lines.RecordCount();
    sheet.cell = [&lines, fields](int row, int column) {
        const int field = fields[static_cast<std::size_t>(column)];
        SheetCell cell{lines.value_at(row, field), lines.display_at(row, field)};
        const auto* amount = std::get_if<Amount>(&cell.value);
        cell.red = amount != nullptr && amount->is_negative();
        return cell;
    };
    return sheet;
}

void TFrm_Sys_Report::InitReport(TClientDataSet& head, TClientDataSet& lines,
                                 const std::string& function, const std::string& title,
                                 const std::string&, const std::string& action,
                                 const std::string& first, const std::string& second) {
    FunctionCode = function;
    RequireRight("print", "打印");
    Sheet sheet = sheet_of_lines(lines);
    sheet.title = title;
    sheet.conditions = head_lines(head);
    for (const std::string& line : {first, second})
        if (!line.empty()) sheet.conditions.push_back(line);
    the_host().ui->print(*paper_of(std::move(sheet)), action == "preview");
}

} // namespace host
