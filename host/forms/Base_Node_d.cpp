// The edit dialog of a tree.
#include "host/forms/Base_Node_d.h"

namespace host {

TFrm_Base_Node_d::TFrm_Base_Node_d(TForm* parent) : EditDialog(parent) {}

int TFrm_Base_Node_d::Open(const std::string& mode, const std::string& key, TClientDataSet* list,
                           TTreeView* tree) {
    Mode = mode;
    InitForm(key, list, tree);
    RefreshData();
    return ShowModal();
}

void TFrm_Base_Node_d::InitForm(const std::string& key, TClientDataSet* list, TTreeView* tree) {
    begin(key, list);
    Tree = tree;
}

} // namespace host
