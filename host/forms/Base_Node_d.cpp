// The edit dialog of a tree.
#include "host/forms/Base_Node_d.h"

namespace host {

TFrm_Base_Node_d::TFrm_Base_Node_d(TForm* parent) : TFrm_Base_Dialog(parent) {}

int TFrm_Base_Node_d::Open(const std::string& mode, const std::string& key, TClientDataSet* list,
                           TTreeView* tree) {
    Mode = mode;
    InitForm(key, list, tree);
    RefreshData();
    return ShowModal();
}

void TFrm_Base_Node_d::InitForm(const std::string& key, TClientDataSet* list, TTreeView* tree) {
    Key = key;
    List = list;
    Tree = tree;
    saved_ = false;
    if (LockedField != nullptr) LockedField->ReadOnly = false;
}

void TFrm_Base_Node_d::RefreshData() {
    if (LockedField != nullptr) LockedField->ReadOnly = Mode == "Edit";
    as_prepared_.take(*this);
}

void TFrm_Base_Node_d::FormShow() {
    TFrm_Base_Dialog::FormShow();
    if (FirstField != nullptr && FirstField->usable()) SetFocusTo(*FirstField);
    as_prepared_.take(*this);
}

void TFrm_Base_Node_d::SaveData() {}

bool TFrm_Base_Node_d::has_unsaved_work() const { return !saved_ && as_prepared_.differs(); }

void TFrm_Base_Node_d::btn_okClick() {
    if (!CheckAll()) return;
    saved_ = false;
    SaveData();
    if (saved_) ModalResult = mrOk;
}

} // namespace host
