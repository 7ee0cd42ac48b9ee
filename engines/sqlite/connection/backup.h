// Copies books that are in use, and checks them.
#pragma once

#include <string>
#include <vector>

#include "engines/session.h"
#include "engines/sqlite/connection/connection.h"

namespace engines {

// See Session::backup_to. The copy is the state at one instant, whatever others write meanwhile.
void copy_books(sqlite3* connection, const std::string& file, const Session::Progress& progress);

// See Session::check_integrity.
std::vector<std::string> integrity_findings(sqlite3* connection);

} // namespace engines
