// Brings books of an earlier program up to date.
#pragma once

#include <string>

#include "engines/session.h"
#include "host/ports/surroundings.h"

namespace app {

// Makes the database what this program's schema says: creates the tables, views and routines that
// the books lack, and the standard roles with their tables; gives views, functions, procedures and
// triggers of the schema this program's text where the books hold another; adds columns and
// indexes that a table lacks, and never takes any away. What people added themselves stays. All of
// it is one transaction with one row of the operation log. Nothing is written where nothing
// differs, and whoever comes second finds nothing to do. For every login. Throws Refusal, also for
// books of a newer program; the books are then as they were.
void bring_up_to_date(engines::Session& session, const host::Clock& clock,
                      const std::string& user);

} // namespace app
