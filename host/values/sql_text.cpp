// Quoting: the one place where a value becomes part of a statement's text.
#include "host/values/sql_text.h"

#include "host/values/text.h"

namespace host {

std::string quoted(std::string_view text) {
    std::string literal;
    literal.reserve(text.size() + 2);
    literal += '\'';
    for (auto quote = text.find('\''); quote != text.npos; quote = text.find('\'')) {
        literal.append(text.substr(0, quote + 1)) += '\'';
        text.remove_prefix(quote + 1);
    }
    literal.append(text) += '\'';
    return literal;
}

std::string escaped(std::string_view text) { return replaced(text, "'", "''"); }

} // namespace host
