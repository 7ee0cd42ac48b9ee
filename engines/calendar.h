// Days counted from 1900-01-01, and the 1/300 second ticks in which datetime counts.
#pragma once

#include <cstdint>

namespace engines {

inline constexpr std::int64_t ticks_per_second = 300;
inline constexpr std::int64_t ticks_per_day = 86400 * ticks_per_second;

// A day of the Gregorian calendar, also before it was introduced.
struct CalendarDay {
    int year = 1900;
    int month = 1; // 1 to 12
    int day = 1;   // 1 to 31
};

// Days from 1900-01-01 to the day, negative before it. The month may not exceed 12; the day may
// be any number, so that the day 0 of a month is the last of the month before.
std::int64_t days_since_1900(int year, int month, int day);

CalendarDay calendar_day(std::int64_t days);

int days_in_month(int year, int month);

// The day on which a datetime falls; rounds down also before 1900.
constexpr std::int64_t day_of_ticks(std::int64_t ticks) {
    return ticks >= 0 ? ticks / ticks_per_day : -((-ticks + ticks_per_day - 1) / ticks_per_day);
}

} // namespace engines
