// Ends what the user began, after saying why.
#pragma once

#include <string>

#include "host/contract/U_function.h"
#include "host/values/errors.h"
#include "module/host_names.h"

namespace module {

[[noreturn]] inline void refuse(const std::string& reason) {
    DISPINFO(reason, 5);
    Abort();
}

} // namespace module
