// The lookup hint of a code field.
#include "host/contract/U_linkedit.h"

#include "host/contract/U_dataop.h"
#include "host/contract/U_function.h"
#include "host/controls/edits.h"
#include "host/dataset/client_dataset.h"
#include "host/values/errors.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"

namespace host {

void CommonHint(TLinkEdit& edit, TClientDataSet& scratch, const std::string& function,
                const std::string& table, const std::string& code_field,
                const std::string& name_field, const std::string& condition,
                const std::string& title) {
    const std::string code = trimmed(edit.Text.get());
    edit.DisplayName = "";
    if (code.empty()) return;
    opensql(scratch, function,
            "SELECT " + code_field + "," + name_field + " FROM " + table + " WHERE (" + code_field +
                "=" + quoted(code) + ")" + (condition.empty() ? "" : " AND (" + condition + ")"));
    if (scratch.IsEmpty()) {
        DISPINFO(title + "不存在!", 5);
        edit.SetFocus();
        edit.SelectAll();
        Abort();
    }
    edit.Text = scratch.FieldByName(code_field).AsText();
    edit.DisplayName = scratch.FieldByName(name_field).AsText();
}

} // namespace host
