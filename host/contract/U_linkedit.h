// The lookup hint of a code field.
#pragma once

#include <string>

namespace host {

class TClientDataSet;
class TLinkEdit;

// Looks `edit`'s code up in `table` (field `code_field`), shows `name_field` beside it; without a
// hit, `title` + "不存在!" and Abort(). `condition` narrows the search; `function` is the calling
// form's code.
void CommonHint(TLinkEdit& edit, TClientDataSet& scratch, const std::string& function,
                const std::string& table, const std::string& code_field,
                const std::string& name_field, const std::string& condition,
                const std::string& title);

} // namespace host
