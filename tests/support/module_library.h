// The module as the program has it: the shared library beside the test, loaded at run time.
#pragma once

#include "host/forms/module_entry.h"

namespace tests {

// Loaded once for the whole test program. Throws std::runtime_error with the loader's reason.
host::ModuleEntry module_entry();

} // namespace tests
