// English names of months and days, as the server writes and reads them.
#pragma once

#include <array>
#include <string_view>

namespace engines {

inline constexpr std::array<std::string_view, 12> month_names{
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};

inline constexpr std::array<std::string_view, 7> weekday_names{
    "Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};

} // namespace engines
