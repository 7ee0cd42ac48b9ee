// A grid edited in place and saved as a whole.
#include "host/forms/Base_Inner.h"

#include "host/forms/parts/list_search.h"
#include "host/forms/parts/sum_footers.h"
#include "host/values/errors.h"

namespace host {

TFrm_Base_Inner::TFrm_Base_Inner(TForm* parent) : TFrm_Base_Panel(parent) {
    hide({&Act_CopyAdd, &Act_Modify, &Act_Locate, &Act_Other});
    Act_Save.Right = "change";
    Act_Save.OnExecute = [this] {
        CommitActive();
        AdoQry_Main.LeaveRow();
        require_rights_of_changes();
        Act_SaveExecute();
    };
    Act_Delete.ShortCut = "Ctrl+Delete"; // Delete empties the cell
    layout = Rows({ToolBar({&Act_Add, &Act_Delete, &Act_Save, nullptr, &Act_Refresh, nullptr,
                            &Act_Print, &Act_Preview, &Act_Export, nullptr, &Act_Quit}),
                   Rest(DBGridEh)});
}

// Rows come into the grid by Enter in the last cell as well as by the action: what counts besides
// the right to change the sheet is what would be written.
void TFrm_Base_Inner::require_rights_of_changes() const {
    const TClientDataSet::ChangeKinds kinds = AdoQry_Main.Changes();
    const std::string what = "“" + Caption.get() + "”";
    if (kinds.inserted) RequireRight("add", "新增" + what);
    if (kinds.deleted) RequireRight("delete", "删除" + what);
}

void TFrm_Base_Inner::InitForm(const Trecord& record) {
    OpenFunction(record);
    add_sum_footers(DBGridEh, SumFields);
    if (!SqlText.empty()) GetData();
    if (!Allowed(Act_Save.Right)) DBGridEh.ReadOnly = true;
    Show();
}

void TFrm_Base_Inner::GetData() {
    const std::string key = current_key(AdoQry_Main, KeyField);
    opensql(AdoQry_Main, FunctionCode, SqlText);
    return_to_key(AdoQry_Main, KeyField, key);
}

void TFrm_Base_Inner::SaveData() {
    if (!ApplyUpdate(FunctionCode, TableName, KeyField, AdoQry_Main)) Abort();
}

void TFrm_Base_Inner::Act_AddExecute() {
    if (!AdoQry_Main.Active()) return;
    DBGridEh.SetFocus();
    AdoQry_Main.Append();
}

void TFrm_Base_Inner::Act_DeleteExecute() {
    if (AdoQry_Main.IsEmpty()) return;
    if (DISPINFO("确定要删除第 " + std::to_string(AdoQry_Main.RecNo() + 1) + " 行吗？", 2) == 'y')
        AdoQry_Main.Delete();
}

void TFrm_Base_Inner::Act_SaveExecute() {
    CommitActive();
    AdoQry_Main.LeaveRow();
    SaveData();
    changed();
}

void TFrm_Base_Inner::Act_RefreshExecute() {
    if (has_unsaved_work() &&
        DISPINFO("刷新会放弃尚未保存的修改，确定要刷新吗？", 2) != 'y')
        return;
    GetData();
}

bool TFrm_Base_Inner::has_unsaved_work() const { return AdoQry_Main.Modified(); }

} // namespace host
