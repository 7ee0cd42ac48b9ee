// The check of a code typed for a new row of a code table.
#include "module/masterdata/new_code.h"

#include "host/dataset/client_dataset.h"
#include "module/refuse.h"

namespace module {

void require_new_code(TFrm_Base_Common& form, TEdit& code, const std::string& label,
                      const std::string& rows_with_code, const std::string& known) {
    CheckBlankInstr(code, label);
    form.CheckBlank(code, label);
    CheckText(code, label);
    TClientDataSet rows;
    opensql(rows, form.FunctionCode, rows_with_code);
    if (rows.IsEmpty()) return;
    code.SetFocus();
    refuse(known);
}

} // namespace module
