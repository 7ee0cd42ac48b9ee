// The Gregorian calendar by the standard library's civil dates.
#include "engines/calendar.h"

#include <chrono>

namespace engines {
namespace {

using namespace std::chrono;
constexpr sys_days base = sys_days(year(1900) / 1 / 1);

} // namespace

std::int64_t days_since_1900(int year_number, int month_number, int day_number) {
    const auto first = year(year_number) / month(static_cast<unsigned>(month_number)) / 1;
    return (sys_days(first) - base).count() + day_number - 1;
}

CalendarDay calendar_day(std::int64_t count) {
    const year_month_day date(base + days(count));
    return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day()))};
}

int days_in_month(int year_number, int month_number) {
    const auto last =
        year(year_number) / month(static_cast<unsigned>(month_number)) / std::chrono::last;
    return static_cast<int>(static_cast<unsigned>(year_month_day(last).day()));
}

} // namespace engines
