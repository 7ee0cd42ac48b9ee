// Parts of dates by plain calendar arithmetic.
#include "engines/sqlite/dates/date_parts.h"

#include <algorithm>
#include <array>
#include <utility>

#include "engines/calendar.h"
#include "engines/sqlite/raise.h"

namespace engines {

const std::int64_t first_datetime = days_since_1900(1753, 1, 1) * ticks_per_day;
const std::int64_t last_datetime = (days_since_1900(9999, 12, 31) + 1) * ticks_per_day - 1;

namespace {

using Name = std::pair<std::string_view, DatePart>;
constexpr std::array names{
    Name{"year", DatePart::year},       Name{"quarter", DatePart::quarter},
    Name{"month", DatePart::month},     Name{"dayofyear", DatePart::dayofyear},
    Name{"day", DatePart::day},         Name{"week", DatePart::week},
    Name{"weekday", DatePart::weekday}, Name{"iso_week", DatePart::iso_week},
    Name{"hour", DatePart::hour},       Name{"minute", DatePart::minute},
    Name{"second", DatePart::second},   Name{"millisecond", DatePart::millisecond}};

// 1900-01-01 was a Monday; Sunday counts as 0.
std::int64_t weekday_of(std::int64_t days) {
    return ((days + 1) % 7 + 7) % 7;
}

std::int64_t floor_divided(std::int64_t value, std::int64_t by) {
    return value >= 0 ? value / by : -((-value + by - 1) / by);
}

// Months since year 0.
std::int64_t month_number(std::int64_t days) {
    const CalendarDay day = calendar_day(days);
    return day.year * 12LL + day.month - 1;
}

std::int64_t day_in_month(std::int64_t month, int day) {
    const auto year = static_cast<int>(floor_divided(month, 12));
    const auto of_year = static_cast<int>(month - year * 12LL) + 1;
    return days_since_1900(year, of_year, std::min(day, days_in_month(year, of_year)));
}

[[noreturn]] void raise_range() {
    raise_error(517, "Adding a value to a 'datetime' column caused an overflow.");
}

std::int64_t add_months(std::int64_t count, std::int64_t ticks) {
    if (count > 120000 || count < -120000) raise_range();
    const std::int64_t days = day_of_ticks(ticks);
    const std::int64_t month = month_number(days) + count;
    if (month < 12 || month >= 10000 * 12) raise_range();
    return day_in_month(month, calendar_day(days).day) * ticks_per_day +
           (ticks - days * ticks_per_day);
}

int iso_week_of(std::int64_t days) {
    // The week that holds the year's first Thursday is the first.
    const std::int64_t thursday = days - (weekday_of(days) + 6) % 7 + 3;
    const int year = calendar_day(thursday).year;
    return static_cast<int>((thursday - days_since_1900(year, 1, 1)) / 7) + 1;
}

} // namespace

std::optional<DatePart> date_part_named(std::string_view name) {
    for (const auto& [known, part] : names)
        if (known == name) return part;
    return std::nullopt;
}

std::int64_t add_to_datetime(DatePart part, std::int64_t count, std::int64_t ticks) {
    constexpr std::int64_t limit = 1LL << 40;
    if (count > limit || count < -limit) raise_range();
    std::int64_t result = 0;
    switch (part) {
    case DatePart::year: result = add_months(count * 12, ticks); break;
    case DatePart::quarter: result = add_months(count * 3, ticks); break;
    case DatePart::month: result = add_months(count, ticks); break;
    case DatePart::dayofyear:
    case DatePart::day:
    case DatePart::weekday: result = ticks + count % 10000000 * ticks_per_day; break;
    case DatePart::week:
    case DatePart::iso_week: result = ticks + count % 10000000 * 7 * ticks_per_day; break;
    case DatePart::hour: result = ticks + count * 3600 * 300; break;
    case DatePart::minute: result = ticks + count * 60 * 300; break;
    case DatePart::second: result = ticks + count * 300; break;
    case DatePart::millisecond:
        // Rounded to the tick, away from zero in the middle.
        result = ticks + (count * 3 + (count < 0 ? -5 : 5)) / 10;
        break;
    }
    const bool beyond = count >= 10000000 || count <= -10000000;
    const bool in_days = part >= DatePart::dayofyear && part <= DatePart::iso_week;
    if ((beyond && in_days) || result < first_datetime || result > last_datetime) raise_range();
    return result;
}

std::int64_t difference(DatePart part, std::int64_t from, std::int64_t to) {
    const std::int64_t from_day = day_of_ticks(from);
    const std::int64_t to_day = day_of_ticks(to);
    const auto boundaries = [&](std::int64_t size) {
        return floor_divided(to, size) - floor_divided(from, size);
    };
    std::int64_t count = 0;
    switch (part) {
    case DatePart::year: count = calendar_day(to_day).year - calendar_day(from_day).year; break;
    case DatePart::quarter: count = month_number(to_day) / 3 - month_number(from_day) / 3; break;
    case DatePart::month: count = month_number(to_day) - month_number(from_day); break;
    case DatePart::dayofyear:
    case DatePart::day:
    case DatePart::weekday: count = to_day - from_day; break;
    case DatePart::week:
    case DatePart::iso_week:
        count = floor_divided(to_day + 1, 7) - floor_divided(from_day + 1, 7);
        break;
    case DatePart::hour: count = boundaries(3600 * 300); break;
    case DatePart::minute: count = boundaries(60 * 300); break;
    case DatePart::second: count = boundaries(300); break;
    case DatePart::millisecond: count = (to * 10 + 1) / 3 - (from * 10 + 1) / 3; break;
    }
    if (count > 2147483647LL || count < -2147483648LL)
        raise_error(535, "The datediff function resulted in an overflow.");
    return count;
}

int part_of(DatePart part, std::int64_t ticks) {
    const std::int64_t days = day_of_ticks(ticks);
    const CalendarDay day = calendar_day(days);
    const auto rest = static_cast<int>(ticks - days * ticks_per_day);
    const std::int64_t first = days_since_1900(day.year, 1, 1);
    switch (part) {
    case DatePart::year: return day.year;
    case DatePart::quarter: return (day.month + 2) / 3;
    case DatePart::month: return day.month;
    case DatePart::dayofyear: return static_cast<int>(days - first) + 1;
    case DatePart::day: return day.day;
    case DatePart::week: return static_cast<int>((days - first + weekday_of(first)) / 7) + 1;
    case DatePart::weekday: return static_cast<int>(weekday_of(days)) + 1;
    case DatePart::iso_week: return iso_week_of(days);
    case DatePart::hour: return rest / 300 / 3600;
    case DatePart::minute: return rest / 300 / 60 % 60;
    case DatePart::second: return rest / 300 % 60;
    case DatePart::millisecond: return (rest % 300 * 10 + 1) / 3;
    }
    return 0;
}

std::int64_t end_of_month(std::int64_t days, std::int64_t count) {
    const std::int64_t month = month_number(days) + count;
    if (month < 12 || month >= 10000 * 12)
        raise_error(517, "Adding a value to a 'date' column caused an overflow.");
    return day_in_month(month, 31);
}

} // namespace engines
