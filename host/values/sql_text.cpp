// Quoting: the one place where a value becomes part of a statement's text.
#include "host/values/sql_text.h"

#include "host/values/text.h"

namespace host {

std::string quoted(std::string_view text) {
    std::string literal;
    literal.reserve(text.size() + 2);
    literal += '\'';
    for (const char c : text) literal.append(c == '\'' ? 2 : 1, c);
    literal += '\'';
    return literal;
}

std::string escaped(std::string_view text) { return replaced(text, "'", "''"); }

} // namespace host
