// Which engine a name of books belongs to.
#pragma once

#include <string>

#include "engines/engine.h"

namespace app {

// A path or ":memory:" means the embedded engine. Throws Refusal for a kind of database that this
// program cannot reach.
const engines::Engine& engine_for(const std::string& books);

// Whether the books are a file of this machine (not ":memory:").
bool is_file(const std::string& books);

} // namespace app
