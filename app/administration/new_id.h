// The check of a name typed for a new user or role.
#pragma once

#include <string>

#include "host/forms/Base_Detail.h"

namespace app {

// The id must be well formed, and `rows_with_id`, a SELECT that lacks but the quoted id at its end,
// must find none; else a message with the label is shown, the focus stays in the field and the
// operation ends.
void require_new_id(host::TFrm_Base_Detail& form, host::TEdit& id, const std::string& label,
                    const std::string& rows_with_id);

} // namespace app
