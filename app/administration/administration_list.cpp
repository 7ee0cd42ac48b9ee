// What the lists of users and of roles share.
#include "app/administration/administration_list.h"

#include "host/forms/Base_Detail.h"
#include "host/forms/parts/list_search.h"

namespace app {

using namespace host;

AdministrationList::AdministrationList(TForm* frame, const std::string& function,
                                       const std::string& caption)
    : TFrm_Base_Outer(frame) {
    FunctionCode = function;
    Caption = caption;
    hide({&Act_CopyAdd});
}

// The dialog's key is that of the row it wrote.
void AdministrationList::show_saved() {
    TFrm_Base_Detail* dialog = Dialog();
    if (dialog == nullptr || dialog->ModalResult.get() != mrOk) return;
    GetData();
    return_to_key(AdoQry_Main, KeyField, dialog->Key);
}

void AdministrationList::Act_AddExecute() {
    TFrm_Base_Outer::Act_AddExecute();
    show_saved();
}

void AdministrationList::Act_CopyAddExecute() {
    TFrm_Base_Outer::Act_CopyAddExecute();
    show_saved();
}

void AdministrationList::Act_ModifyExecute() {
    TFrm_Base_Outer::Act_ModifyExecute();
    show_saved();
}

} // namespace app
