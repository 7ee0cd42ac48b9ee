// The edit dialog of a tree.
#pragma once

#include "host/controls/tree_view.h"
#include "host/forms/parts/edit_dialog.h"

namespace host {

// SaveData of a form derived from it sends its statements, sets saved_ when they were answered "Y"
// and then brings the tree up to date.
class TFrm_Base_Node_d : public EditDialog {
public:
    explicit TFrm_Base_Node_d(TForm* parent);

    // Prepares the dialog for `mode` on the tree's selected node and shows it modally; answers the
    // modal result.
    virtual int Open(const std::string& mode, const std::string& key, TClientDataSet* list,
                     TTreeView* tree);
    virtual void InitForm(const std::string& key, TClientDataSet* list, TTreeView* tree);

    TTreeView* Tree = nullptr;
};

} // namespace host
