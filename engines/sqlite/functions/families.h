// The tables of functions, one for each family; each stands in a file of its own.
#pragma once

#include <sqlite3.h>

#include <span>

#include "engines/sqlite/functions/call.h"

namespace engines {

std::span<const FunctionEntry> conversion_functions();
std::span<const FunctionEntry> integer_functions();
std::span<const FunctionEntry> decimal_functions();
std::span<const FunctionEntry> float_functions();
std::span<const FunctionEntry> text_functions();
std::span<const FunctionEntry> search_functions();
std::span<const FunctionEntry> date_functions();
std::span<const FunctionEntry> object_functions();

void register_aggregates(sqlite3* connection, Runtime& runtime);
void register_text_aggregates(sqlite3* connection, Runtime& runtime);
void register_groups(sqlite3* connection);
void register_collations(sqlite3* connection);

// All of the above. The runtime must outlive the connection.
void register_everything(sqlite3* connection, Runtime& runtime);

} // namespace engines
