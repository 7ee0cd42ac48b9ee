// DATEADD, DATEDIFF, DATEPART: calculations with parts of a date.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace engines {

enum class DatePart : std::uint8_t {
    year,
    quarter,
    month,
    dayofyear,
    day,
    week,
    weekday,
    iso_week,
    hour,
    minute,
    second,
    millisecond
};

// By the full lower-case name.
std::optional<DatePart> date_part_named(std::string_view name);

// Days and ticks are those of engines/calendar.h. A month that is too short for the day takes its
// last day. Error 517 outside 1753 to 9999.
std::int64_t add_to_datetime(DatePart part, std::int64_t count, std::int64_t ticks);

// Boundaries of the part crossed between the two; weeks begin on Sunday. Error 535 when the count
// does not fit an int.
std::int64_t difference(DatePart part, std::int64_t from_ticks, std::int64_t to_ticks);

int part_of(DatePart part, std::int64_t ticks);

// Last day of the month that lies count months after that of the day.
std::int64_t end_of_month(std::int64_t days, std::int64_t count);

// The bounds of the type datetime.
extern const std::int64_t first_datetime; // 1753-01-01 00:00:00.000
extern const std::int64_t last_datetime;  // 9999-12-31 23:59:59.997

} // namespace engines
