// Values of literals.
#pragma once

#include <string>

#include "engines/sqlite/conversion/stored.h"
#include "tsql/plan/plan.h"

namespace engines {

// The stored value of a literal under its own type; buffer holds its bytes if it needs them.
Stored literal_value(const tsql::LiteralValue& literal, const tsql::Type& type,
                     std::string& buffer);

} // namespace engines
