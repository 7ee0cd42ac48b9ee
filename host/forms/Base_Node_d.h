// The edit dialog of a tree.
#pragma once

#include "host/controls/tree_view.h"
#include "host/forms/Base_Dialog.h"

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
    bool saved_ = false;
};

} // namespace host
