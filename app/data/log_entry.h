// Writes one row of the operation log.
#pragma once

#include <string>
#include <string_view>

#include "engines/session.h"
#include "host/ports/data_port.h"
#include "host/values/date.h"

namespace app {

// Whether the books have a log with texts; those of a time before it have none.
bool keeps_log(engines::Session& session);

// Writes down where the log ends, for books that have no such row yet.
engines::Outcome begin_log_head(engines::Session& session);

// Adds the row that follows the last one, with the text of the batch, and moves the log's head.
// Must run inside a transaction that holds the right to write, so that nobody else adds a row in
// between. A key longer than its column is cut.
engines::Outcome append_log_row(engines::Session& session, host::DateTime now,
                                const std::string& user, const host::LogEntry& entry,
                                std::string_view batch);

} // namespace app
