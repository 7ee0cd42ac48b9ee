// Edit dialogs: prepared for a mode, closed once saved.
#include "host/forms/parts/edit_dialog.h"

#include "host/dataset/client_dataset.h"

namespace host {

void EditDialog::begin(const std::string& key, TClientDataSet* list) {
    Key = key;
    List = list;
    saved_ = false;
    if (LockedField != nullptr) LockedField->ReadOnly = false;
}

void EditDialog::RefreshData() {
    if (LockedField != nullptr) LockedField->ReadOnly = Mode == "Edit";
}

void EditDialog::FormShow() {
    TFrm_Base_Dialog::FormShow();
    if (FirstField != nullptr && FirstField->usable()) SetFocusTo(*FirstField);
    as_prepared_.take(*this);
}

bool EditDialog::has_unsaved_work() const { return Shown() && !saved_ && as_prepared_.differs(); }

void EditDialog::btn_okClick() {
    RequireSaveRight(Mode);
    if (!CheckAll()) return;
    saved_ = false;
    SaveData();
    if (!saved_) return;
    if (List != nullptr && List->Active()) {
        List->Post();
        List->MarkSaved();
    }
    ModalResult = mrOk;
}

} // namespace host
