// Names and texts as SQL writes them; the same in all engines we emit for.
#pragma once

#include <string>
#include <string_view>

namespace tsql {

// "name", its quotes doubled.
std::string quoted_name(std::string_view name);

// 'text', its quotes doubled.
std::string quoted_text(std::string_view text);

// ASCII letters in lower case, others as they are.
std::string lower_case(std::string_view text);

} // namespace tsql
