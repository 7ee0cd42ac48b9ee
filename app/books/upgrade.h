// Brings books of an earlier program up to date.
#pragma once

#include <string>

#include "engines/session.h"
#include "host/ports/surroundings.h"

namespace app {

// Creates the tables, views and routines that the books lack, and the standard roles with their
// tables, in one transaction with a row of the operation log. Nothing is written where nothing is
// missing. Throws Refusal; the books are then as they were. For the administrator's login.
void create_what_is_missing(engines::Session& session, const host::Clock& clock,
                            const std::string& user);

} // namespace app
