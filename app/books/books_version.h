// Which state of the database's objects a set of books has.
#pragma once

#include <string>

#include "engines/session.h"

namespace app {

// The number of schema/schema.h that the books were made with or last brought to; 0 for books of a
// time before there was one.
int version_of(engines::Session& session);

// The batch that writes down this program's number.
std::string write_version();

// What is said of books whose objects a newer program made, "" of others: this program would not
// keep what they need.
std::string why_too_new(engines::Session& session);

} // namespace app
