// How much room a text takes in a column, and making it fit.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "tsql/types/type.h"

namespace engines {

// Room in the unit of the type: bytes of the Chinese code page for char and varchar (one for ASCII,
// two for a Chinese character), characters for nchar and nvarchar.
std::size_t room_of(std::string_view text, const tsql::Type& type);

// The longest beginning of the text that fits the type.
std::string_view cut_to_fit(std::string_view text, const tsql::Type& type);

// As a column takes it: blanks beyond its length are dropped, anything else is error 8152.
std::string_view refuse_unless_fit(std::string_view text, const tsql::Type& type);

// Fills char and nchar up with blanks; leaves other types alone.
void pad(std::string& text, const tsql::Type& type);

} // namespace engines
