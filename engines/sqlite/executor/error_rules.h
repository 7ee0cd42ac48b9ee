// How far an error reaches.
#pragma once

#include "engines/error.h"
#include "tsql/source/position.h"

namespace engines {

// Whether the error ends its batch and undoes the transaction, rather than only its statement:
// conversions, missing objects found when a statement is reached, THROW, trouble with the file.
bool ends_batch(const Error& error);

// Puts the place of the statement into an error that has none; at counts from base.
void set_place(Error& error, const tsql::LineColumn& base, const tsql::LineColumn& at);

// Whether TRY … CATCH may take it.
bool can_be_caught(const Error& error);

} // namespace engines
