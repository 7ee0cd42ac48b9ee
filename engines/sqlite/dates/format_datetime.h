// A date and time as text in the styles of CONVERT.
#pragma once

#include <cstdint>
#include <string>

namespace engines {

// Appends ticks (1/300 seconds since 1900-01-01) in a style such as 120 or 112. with_time false
// writes only the date part of a style that has both, as for the type date. False for a style
// that does not exist.
//
// Example: style 120 "2016-03-15 12:30:00", 111 "2016/03/15", 0 "Mar 15 2016 12:30PM".
bool append_datetime(std::int64_t ticks, int style, bool with_time, std::string& out);

} // namespace engines
