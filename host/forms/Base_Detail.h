// The edit dialog of an outer list.
#pragma once

#include "host/forms/parts/edit_dialog.h"

namespace host {

// SaveData of a form derived from it sends its statements, sets saved_ when they were answered "Y"
// and then writes the list's row: the current one in "Edit", an appended one otherwise.
class TFrm_Base_Detail : public EditDialog {
public:
    explicit TFrm_Base_Detail(TForm* parent);

    // Prepares the dialog for `mode` on the list's current row and shows it modally; answers the
    // modal result.
    virtual int Open(const std::string& mode, const std::string& key, TClientDataSet* list);
    virtual void InitForm(const std::string& key, TClientDataSet* list);
};

} // namespace host
