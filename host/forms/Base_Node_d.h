// The edit dialog of a tree.
#pragma once

#include "host/controls/tree_view.h"
#include "host/forms/Base_Dialog.h"
#include "host/forms/parts/field_snapshot.h"

namespace host {

class TClientDataSet;

class TFrm_Base_Node_d : public TFrm_Base_Dialog {
public:
    explicit TFrm_Base_Node_d(TForm* parent);
    virtual int Open(const std::string& mode, const std::string& key, TClientDataSet* list,
                     TTreeView* tree);
    virtual void InitForm(const std::string& key, TClientDataSet* list, TTreeView* tree);
    virtual void RefreshData();
    virtual void SaveData();

    std::string Mode, Key;
    TClientDataSet* List = nullptr;
    TTreeView* Tree = nullptr;
    TWinControl* LockedField = nullptr;
    TWinControl* FirstField = nullptr;

protected:
    void btn_okClick() override;
    bool has_unsaved_work() const override;
    void FormShow() override;
    bool saved_ = false; // set by SaveData when ExecSql answered "Y"

private:
    FieldSnapshot as_prepared_;
};

} // namespace host
