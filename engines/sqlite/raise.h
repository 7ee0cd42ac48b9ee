// Raising an error of the server from inside a calculation.
#pragma once

#include <string>

#include "engines/error.h"

namespace engines {

// Throws Failure with this number; the statement that runs ends with it.
[[noreturn]] void raise_error(int number, std::string text);

// The errors that many calculations share, in the server's words.
[[noreturn]] void raise_division_by_zero();
// 8115; type as declared in general: "int", "numeric", "money".
[[noreturn]] void raise_overflow(const std::string& type);

} // namespace engines
