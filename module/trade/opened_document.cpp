// A document opened to be changed: saved only while nobody else changed it.
#include "module/trade/opened_document.h"

namespace module {

namespace {

constexpr char cell_end = '\x1f', row_end = '\x1e';

std::string in_one_text(const TClientDataSet& rows, const std::vector<std::string>& fields) {
    std::string text;
    for (int row = 0; row < rows.RecordCount(); ++row) {
        for (const std::string& name : fields) {
            const TField* field = rows.FindField(name); // the form may hold more than was read
            text += (field == nullptr ? "" : rows.text_at(row, field->index())) + cell_end;
        }
        text += row_end;
    }
    return text;
}

} // namespace

OpenedDocument::Reading OpenedDocument::reading(const TClientDataSet& rows,
                                                const std::string& select) {
    Reading reading{select, {}, ""};
    for (const auto& field : rows.Fields()) reading.fields.push_back(field->FieldName);
    reading.answer = in_one_text(rows, reading.fields);
    return reading;
}

void OpenedDocument::remember(const TClientDataSet& head, const TClientDataSet& lines,
                              const std::string& head_select, const std::string& line_select) {
    head_ = reading(head, head_select);
    lines_ = reading(lines, line_select);
}

std::string OpenedDocument::why_changed_meanwhile(const std::string& function) const {
    TClientDataSet head, lines;
    opensql(head, function, head_.select);
    if (head.IsEmpty()) return "单据已被他人删除,不能保存!请退出后刷新列表。";
    opensql(lines, function, lines_.select);
    const bool same = in_one_text(head, head_.fields) == head_.answer &&
                      in_one_text(lines, lines_.fields) == lines_.answer;
    return same ? "" : "单据在打开之后已被他人修改或核销,不能保存!请退出后重新打开该单据。";
}

std::string OpenedDocument::save(const std::string& function, const std::string& key,
                                 const std::string& mode, const std::string& batch) const {
    if (mode != "Edit") return ExecSql(function, key, mode, batch, 0, false, true, false, true);
    const WhyNot why_not = [this, &function] { return why_changed_meanwhile(function); };
    return ExecSqlUnless(why_not, function, key, mode, batch);
}

} // namespace module
