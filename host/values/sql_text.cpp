// Quoting: the one place where a value becomes part of a statement's text.
#include "host/values/sql_text.h"

#include "host/values/text.h"

namespace host {

std::string quoted(std::string_view text) { return "'" + escaped(text) + "'"; }

std::string escaped(std::string_view text) { return replaced(text, "'", "''"); }

} // namespace host
