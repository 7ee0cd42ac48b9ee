// The edit dialog of an outer list.
#include "host/forms/Base_Detail.h"

namespace host {

TFrm_Base_Detail::TFrm_Base_Detail(TForm* parent) : EditDialog(parent) {}

int TFrm_Base_Detail::Open(const std::string& mode, const std::string& key, TClientDataSet* list) {
    Mode = mode;
    InitForm(key, list);
    RefreshData();
    return ShowModal();
}

void TFrm_Base_Detail::InitForm(const std::string& key, TClientDataSet* list) { begin(key, list); }

} // namespace host
