// The check of a code typed for a new row of a code table.
#pragma once

#include <string>

#include "host/forms/Base_Common.h"
#include "module/host_names.h"

namespace module {

// The code must be well formed and `rows_with_code`, a SELECT, must find none; else a message with
// the label, or `known`, is shown, the focus goes back to the field and the operation ends.
void require_new_code(TFrm_Base_Common& form, TEdit& code, const std::string& label,
                      const std::string& rows_with_code, const std::string& known);

} // namespace module
