// The edit dialog of an outer list.
#pragma once

#include "host/forms/Base_Dialog.h"
#include "host/forms/parts/field_snapshot.h"

namespace host {

class TClientDataSet;

class TFrm_Base_Detail : public TFrm_Base_Dialog {
public:
    explicit TFrm_Base_Detail(TForm* parent);

    // Prepares the dialog for `mode` on the list's current row and shows it modally; answers the
    // modal result.
    virtual int Open(const std::string& mode, const std::string& key, TClientDataSet* list);
    virtual void InitForm(const std::string& key, TClientDataSet* list);
    virtual void RefreshData(); // fills the fields for the mode; locks LockedField in "Edit"
    virtual void SaveData();    // sends the statements, then brings the list's row up to date

    std::string Mode; // "Add", "CopyAdd", "Edit"
    std::string Key;
    TClientDataSet* List = nullptr;
    TWinControl* LockedField = nullptr; // may not be changed in "Edit"
    TWinControl* FirstField = nullptr;  // gets the focus

protected:
    void btn_okClick() override; // CheckAll, SaveData; closes only when saved
    bool has_unsaved_work() const override;
    void FormShow() override;
    bool saved_ = false; // set by SaveData when ExecSql answered "Y"

private:
    FieldSnapshot as_prepared_;
};

} // namespace host
