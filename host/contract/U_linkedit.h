// The lookup hint of a code field.
#pragma once

#include <string>

namespace host {

class TClientDataSet;
class TLinkEdit;

// Opens a picker over code and name of the rows of `table` that `condition` lets through; `caption`
// names the window and the name's column. `rows` receives what is offered. The code chosen goes
// into the edit, its name beside it; left without a choice the edit stays as it was.
//
//     CommonHint(KM_ID, rows, "d6801", "km_id", "科目编号", "km_name", "科目", "(km_id>'3141')");
void CommonHint(TLinkEdit& edit, TClientDataSet& rows, const std::string& table,
                const std::string& code, const std::string& code_title, const std::string& name,
                const std::string& caption, const std::string& condition);

} // namespace host
