// The edit dialog of an outer list.
#include "host/forms/Base_Detail.h"

#include "host/dataset/client_dataset.h"

namespace host {

TFrm_Base_Detail::TFrm_Base_Detail(TForm* parent) : TFrm_Base_Dialog(parent) {}

int TFrm_Base_Detail::Open(const std::string& mode, const std::string& key, TClientDataSet* list) {
    Mode = mode;
    InitForm(key, list);
    RefreshData();
    return ShowModal();
}

void TFrm_Base_Detail::InitForm(const std::string& key, TClientDataSet* list) {
    Key = key;
    List = list;
    saved_ = false;
    if (LockedField != nullptr) LockedField->ReadOnly = false;
}

void TFrm_Base_Detail::RefreshData() {
    if (LockedField != nullptr) LockedField->ReadOnly = Mode == "Edit";
    as_prepared_.take(*this);
}

void TFrm_Base_Detail::FormShow() {
    TFrm_Base_Dialog::FormShow();
    if (FirstField != nullptr && FirstField->usable()) SetFocusTo(*FirstField);
    as_prepared_.take(*this);
}

void TFrm_Base_Detail::SaveData() {}

bool TFrm_Base_Detail::has_unsaved_work() const { return !saved_ && as_prepared_.differs(); }

void TFrm_Base_Detail::btn_okClick() {
    if (!CheckAll()) return;
    saved_ = false;
    SaveData();
    if (!saved_) return;
    if (List != nullptr) {
        List->Post();
        List->MarkSaved();
    }
    ModalResult = mrOk;
}

} // namespace host
