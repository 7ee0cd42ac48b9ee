// Forms with a main grid: actions, columns, colours.
#include "host/forms/Base_Panel.h"

#include "host/controls/amount_column.h"
#include "host/forms/parts/paper_job.h"
#include "host/forms/parts/sheet_export.h"
#include "host/ports/host.h"
#include "host/printing/paper.h"
#include "host/printing/grid_sheet.h"

namespace host {

TFrm_Base_Panel::TFrm_Base_Panel(TForm* parent) : TFrm_Base_Common(parent) {
    Act_Add.OnExecute = [this] { Act_AddExecute(); };
    Act_CopyAdd.OnExecute = [this] { Act_CopyAddExecute(); };
    Act_Modify.OnExecute = [this] { Act_ModifyExecute(); };
    Act_Delete.OnExecute = [this] { Act_DeleteExecute(); };
    Act_Save.OnExecute = [this] { Act_SaveExecute(); };
    Act_Refresh.OnExecute = [this] { Act_RefreshExecute(); };
    Act_Locate.OnExecute = [this] { Act_LocateExecute(); };
    Act_Print.OnExecute = [this] { Act_PrintExecute(); };
    Act_Preview.OnExecute = [this] { Act_PreviewExecute(); };
    Act_Export.OnExecute = [this] { Act_ExportExecute(); };
    Act_Other.OnExecute = [this] { Act_OtherExecute(); };
    Act_Audit.OnExecute = [this] { Act_AuditExecute(); };
    Act_UnAudit.OnExecute = [this] { Act_UnAuditExecute(); };
    Act_Quit.OnExecute = [this] { Act_QuitExecute(); };
    Act_Add.Right = Act_CopyAdd.Right = "add";
    Act_Modify.Right = "change";
    Act_Delete.Right = "delete";
    Act_Audit.Right = Act_UnAudit.Right = "audit";
    Act_Print.Right = Act_Preview.Right = "print";
    Act_Export.Right = "export";
    hide({&Act_Audit, &Act_UnAudit});
    if (!can_print()) hide({&Act_Print, &Act_Preview});
    DBGridEh.OnKeyPress = [this](char32_t& character) { DBGridEhKeyPress(character); };
    DBGridEh.OnDblClick = [this] { DBGridEhDblClick(); };
    DBGridEh.OnGetCellParams = [this](TField& field, CellParams& params) {
        DBGridEhGetCellParams(field, params);
    };
}

void TFrm_Base_Panel::hide(std::initializer_list<TAction*> actions) {
    for (TAction* action : actions) action->Visible = false;
}

void TFrm_Base_Panel::SetFloatText(TField& field, const std::string& typed) {
    field.SetConverted(typed);
}

GridColumn& TFrm_Base_Panel::AddColumn(const std::string& field, const std::string& title,
                                       int width) {
    GridColumn column;
    column.FieldName = field;
    column.Title = title;
    column.Width = width;
    DBGridEh.Columns.push_back(std::move(column));
    return DBGridEh.Columns.back();
}

GridColumn& TFrm_Base_Panel::AddAmountColumn(const std::string& field, const std::string& title,
                                             int width) {
    TField& amount = AdoQry_Main.DefineField(field, FieldType::Amount);
    if (amount.DisplayFormat.empty()) amount.DisplayFormat = "0.00";
    DBGridEh.Columns.push_back(amount_column(field, title, width, FooterKind::None));
    return DBGridEh.Columns.back();
}

void TFrm_Base_Panel::Act_QuitExecute() { Close(); }
void TFrm_Base_Panel::Act_PrintExecute() { the_host().ui->print(*MakeDocument(), false); }
void TFrm_Base_Panel::Act_PreviewExecute() { the_host().ui->print(*MakeDocument(), true); }
void TFrm_Base_Panel::Act_ExportExecute() { export_sheet(MakeSheet()); }

Sheet TFrm_Base_Panel::MakeSheet() { return sheet_of(DBGridEh, Caption); }

std::unique_ptr<PaperDocument> TFrm_Base_Panel::MakeDocument() { return paper_of(MakeSheet()); }

void TFrm_Base_Panel::DBGridEhKeyPress(char32_t&) {}
void TFrm_Base_Panel::DBGridEhDblClick() {}

void TFrm_Base_Panel::DBGridEhGetCellParams(TField& field, CellParams& params) {
    const int index = DBGridEh.column_index(field.FieldName);
    if (index < 0 || DBGridEh.Columns[static_cast<std::size_t>(index)].Tag != amount_tag) return;
    if (field.AsAmount().is_negative()) params.Font = clRed;
}

void TFrm_Base_Panel::FormKeyDown(Key& key) { TFrm_Base_Common::FormKeyDown(key); }

} // namespace host
