// The lookup hint of a code field.
#include "host/contract/U_linkedit.h"

#include "host/forms/parts/code_picker.h"
#include "host/values/text.h"

namespace host {

void CommonHint(TLinkEdit& edit, TClientDataSet& rows, const std::string& table,
                const std::string& code, const std::string& code_title, const std::string& name,
                const std::string& caption, const std::string& condition) {
    CodePicker picker(edit.form());
    const std::string where = trimmed(condition).empty() ? "" : " where " + condition;
    opensql(rows, picker.FunctionCode,
            "select " + code + "," + name + " from " + table + where + " order by " + code);
    picker.init(rows, code_title, caption, edit.Text);
    if (picker.ShowModal() != mrOk) return;
    edit.Text = picker.chosen_code();
    edit.DisplayName = picker.chosen_name(); // after the code, whose change may clear it
}

} // namespace host
