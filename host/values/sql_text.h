// Quoting: the one place where a value becomes part of a statement's text.
#pragma once

#include <string>
#include <string_view>

namespace host {

// The text between single quotes with its own quotes doubled: O'Brien → 'O''Brien'. Whatever a
// person types, the shape of the statement stays as written and the text arrives unchanged.
std::string quoted(std::string_view text);
// Exact matches, so that the standard library's function of the same name is never meant instead.
inline std::string quoted(const std::string& text) { return quoted(std::string_view(text)); }
inline std::string quoted(const char* text) { return quoted(std::string_view(text)); }

// The same without the surrounding quotes, for texts that stand inside a longer literal
// ("like '%" + escaped(text) + "%'").
std::string escaped(std::string_view text);

} // namespace host
