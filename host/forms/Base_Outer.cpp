// A list with a separate edit dialog.
#include "host/forms/Base_Outer.h"

#include "host/forms/Base_Detail.h"
#include "host/forms/parts/list_search.h"

namespace host {

TFrm_Base_Outer::TFrm_Base_Outer(TForm* parent) : TFrm_Base_Panel(parent) {
    hide({&Act_Save, &Act_Locate, &Act_Other});
    DBGridEh.ReadOnly = true;
    SearchBox.OnChange = [this] { narrow(); };
    // Enter goes on from what was typed to the rows that it left.
    SearchBox.OnKeyDown = [this](Key& key) {
        if (key.code != KeyCode::Enter || key.ctrl || key.alt || key.shift) return;
        key = {};
        SetFocusTo(DBGridEh);
    };
    Act_Modify.ShortCut = "Enter"; // which the grid hands to the double click
    layout = Rows({ToolBar({&Act_Add, &Act_CopyAdd, &Act_Modify, &Act_Delete, nullptr, &Act_Refresh,
                            nullptr, &Act_Print, &Act_Preview, &Act_Export, nullptr, &Act_Quit}),
                   Columns({Field("", SearchBox, 24), Spring()}), Rest(DBGridEh)});
}

void TFrm_Base_Outer::InitForm(const Trecord& record) {
    OpenFunction(record);
    if (!SqlText.empty()) GetData();
    Show();
    SetFocusTo(DBGridEh);
}

void TFrm_Base_Outer::GetData() {
    const std::string key = current_key(AdoQry_Main, KeyField);
    opensql(AdoQry_Main, FunctionCode, SqlText);
    return_to_key(AdoQry_Main, KeyField, key);
}

void TFrm_Base_Outer::narrow() {
    const std::string typed = SearchBox.Text;
    if (typed.empty())
        AdoQry_Main.SetFilter(nullptr);
    else
        AdoQry_Main.SetFilter(
            [typed](const TClientDataSet& rows) { return row_matches_typed(rows, typed); });
}

void TFrm_Base_Outer::open_dialog(const char* mode) {
    TFrm_Base_Detail* dialog = Dialog();
    if (dialog == nullptr) return;
    dialog->FunctionCode = FunctionCode;
    dialog->Open(mode, current_key(AdoQry_Main, KeyField), &AdoQry_Main);
}

void TFrm_Base_Outer::Act_AddExecute() { open_dialog("Add"); }

void TFrm_Base_Outer::Act_CopyAddExecute() {
    if (!AdoQry_Main.IsEmpty()) open_dialog("CopyAdd");
}

void TFrm_Base_Outer::Act_ModifyExecute() {
    if (!AdoQry_Main.IsEmpty()) open_dialog("Edit");
}

void TFrm_Base_Outer::DBGridEhDblClick() { Act_Modify.Execute(); }

void TFrm_Base_Outer::Act_DeleteExecute() {
    if (AdoQry_Main.IsEmpty()) return;
    const std::string key = current_key(AdoQry_Main, KeyField);
    const TField* name = AdoQry_Main.FindField(NameField);
    const std::string shown = name == nullptr ? key : name->AsText();
    allow_delete(Uses, FunctionCode, key, shown.empty() ? key : shown);
    if (ExecSql(FunctionCode, key, "Delete", with_key(DeleteStatement, key)) != "Y") return;
    AdoQry_Main.Delete();
    AdoQry_Main.MarkSaved();
}

void TFrm_Base_Outer::Act_RefreshExecute() { GetData(); }

} // namespace host
