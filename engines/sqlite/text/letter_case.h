// Upper and lower case of letters, the same on every system.
#pragma once

#include <string>
#include <string_view>

namespace engines {

char32_t upper_case(char32_t character);
char32_t lower_case(char32_t character);
std::string upper_case(std::string_view text);
std::string lower_case(std::string_view text);

} // namespace engines
