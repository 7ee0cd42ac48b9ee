// Ends what the user began, after saying why.
#pragma once

#include <string>

#include "host/contract/U_function.h"
#include "host/values/errors.h"
#include "module/host_names.h"

namespace module {

// What forms say that need a current period when the books were not set up.
inline constexpr const char* no_current_period = "读取会计期间错误!请确认是否进行初始建帐!";

[[noreturn]] inline void refuse(const std::string& reason) {
    DISPINFO(reason, 5);
    Abort();
}

} // namespace module
