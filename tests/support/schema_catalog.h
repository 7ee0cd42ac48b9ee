// The catalogue of full books without an engine, for tests that only compile.
#pragma once

#include "tsql/compiler.h"

namespace support {

// Compiles every object of the schema and puts it into the catalogue. Throws tsql::Refusal, its
// sentence led by the object's name.
void fill_catalog(tsql::Catalog& catalog);

// What compiling a text is refused with ("207 1:8 Invalid column …"), "" when it is accepted.
// A table that does not exist is a refusal here.
std::string compile_refusal(tsql::Compiler& compiler, std::string_view text);

} // namespace support
