// Audit the books and list what was found.
#include "app/administration/books_check.h"

#include "app/administration/audit_service.h"

namespace app {

using namespace host;

namespace {

constexpr const char* damage = "问题";
constexpr const char* hint = "提示";

} // namespace

// ---- opening ----

TFrm_Check::TFrm_Check(TForm* frame) : TFrm_Base_Qry(frame) {
    FunctionCode = "check";
    Caption = "核对帐套";
    for (const char* field : {"KIND", "CHECK", "TEXT"})
        AdoQry_Main.DefineField(field, FieldType::Text);
    AddColumn("KIND", "性质", 8).Align = Alignment::Center;
    AddColumn("CHECK", "项目", 20);
    AddColumn("TEXT", "内容", -1);
    Act_Refresh.Caption = "重新核对";
    hide({&Act_Locate});
    DBGridEh.EmptyText = "没有发现问题";
}

void TFrm_Check::InitForm(const Trecord& record) {
    TFrm_Base_Qry::InitForm(record);
    GetData();
}

// ---- what the user does ----

void TFrm_Check::Act_RefreshExecute() { GetData(); }

void TFrm_Check::GetData() {
    const auto books = audit_books_now();
    if (!books) {
        ConditionLabel.Caption = "核对已取消,列出的是上一次的结果。";
        return;
    }
    AdoQry_Main.Close();
    AdoQry_Main.Open();
    for (const automation::Finding& finding : books->audit.findings)
        add_row(damage, finding.check, finding.text);
    for (const automation::Finding& finding : books->audit.hints)
        add_row(hint, finding.check, finding.text);
    AdoQry_Main.MarkSaved();
    AdoQry_Main.First();
    const std::size_t count = books->audit.findings.size();
    ConditionLabel.Caption =
        (count == 0 ? "帐套没有发现问题。" : "发现 " + std::to_string(count) + " 处问题。") +
        (books->seal.empty() ? "" : "    操作日志封条: " + books->seal);
}

void TFrm_Check::add_row(const std::string& kind, const std::string& check,
                         const std::string& text) {
    AdoQry_Main.Append();
    AdoQry_Main.FieldByName("KIND").SetValue(kind);
    AdoQry_Main.FieldByName("CHECK").SetValue(check);
    AdoQry_Main.FieldByName("TEXT").SetValue(text);
    AdoQry_Main.Post();
}

void TFrm_Check::DBGridEhGetCellParams(TField& field, CellParams& params) {
    TFrm_Base_Qry::DBGridEhGetCellParams(field, params);
    if (AdoQry_Main.FieldByName("KIND").AsText() == damage) params.Font = clRed;
}

} // namespace app
