// Reads dates and times from text in the forms a server accepts.
#pragma once

#include <cstdint>
#include <string_view>

namespace engines {

enum class DateReading : std::uint8_t {
    read,
    malformed,   // not the form of a date
    out_of_range // the form of a date, but there is no such day or time
};

struct ParsedDateTime {
    DateReading reading = DateReading::malformed;
    std::int64_t days = 0;        // since 1900-01-01
    std::int64_t nanoseconds = 0; // since midnight
    bool long_fraction = false;   // more than three decimals of a second: too fine for datetime
};

// style as the third argument of CONVERT orders numeric dates (103: day first); 0 takes the year
// first when it stands first, else month, day, year. A time alone is of 1900-01-01; the empty
// text is 1900-01-01 00:00.
//
// Example: "2016-3-5 14:05", "20160305", "05/03/2016" with style 103, "Mar 5 2016 2:05PM".
ParsedDateTime parse_datetime(std::string_view text, int style);

} // namespace engines
