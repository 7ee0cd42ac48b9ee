// What the edit dialogs of lists and trees share: modes, the locked key, saving.
#pragma once

#include "host/forms/Base_Dialog.h"
#include "host/forms/parts/field_snapshot.h"

namespace host {

class TClientDataSet;

class EditDialog : public TFrm_Base_Dialog {
public:
    using TFrm_Base_Dialog::TFrm_Base_Dialog;

    virtual void RefreshData(); // fills the fields for the mode; locks LockedField in "Edit"
    virtual void SaveData() {}  // sends the statements; sets saved_ when they were answered "Y"

    std::string Mode; // "Add", "CopyAdd", "Edit"
    std::string Key;
    TClientDataSet* List = nullptr;
    TWinControl* LockedField = nullptr; // may not be changed in "Edit"
    TWinControl* FirstField = nullptr;  // gets the focus

protected:
    void begin(const std::string& key, TClientDataSet* list);
    void btn_okClick() override; // CheckAll, SaveData; closes only when saved
    bool has_unsaved_work() const override;
    void FormShow() override;
    bool saved_ = false; // set by SaveData when ExecSql answered "Y"

private:
    FieldSnapshot as_prepared_;
};

} // namespace host
