// Changes made past the forms, by statements typed in, stand in the operation log too.
#pragma once

#include <string>

#include "engines/session.h"
#include "host/ports/surroundings.h"

namespace app {

// From now on every transaction of this session that changes the books writes its batches into the
// operation log, as function "sql" and operation "Sql". What cannot be logged is not done. Books
// without a log (an empty database, books of a time before it) are left as they are. The clock
// must outlive the session.
void log_direct_changes(engines::Session& session, const host::Clock& clock,
                        const std::string& user);

// Who works at the terminal, as the system knows him: "(anna)". The brackets tell him from the
// users of the books.
std::string system_user();

} // namespace app
