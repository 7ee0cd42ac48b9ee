// Calculations with dates inside statements.
#include "engines/calendar.h"
#include "engines/sqlite/dates/date_parts.h"
#include "engines/sqlite/dates/month_names.h"
#include "engines/sqlite/dates/parse_datetime.h"
#include "engines/sqlite/functions/families.h"
#include "engines/sqlite/raise.h"

namespace engines {
namespace {

DatePart part(const Call& call) {
    const auto found = date_part_named(call.text(0));
    if (!found)
        raise_error(155,
                    "'" + std::string(call.text(0)) + "' is not a recognized datepart option.");
    return *found;
}

void dateadd(const Call& call) {
    call.give(add_to_datetime(part(call), call.integer(1), call.integer(2)));
}
void datediff(const Call& call) {
    call.give(difference(part(call), call.integer(1), call.integer(2)));
}
void datepart(const Call& call) {
    call.give(part_of(part(call), call.integer(1)));
}

void datename(const Call& call) {
    const DatePart which = part(call);
    const int value = part_of(which, call.integer(1));
    const auto index = static_cast<std::size_t>(value - 1);
    if (which == DatePart::month)
        call.give_text(month_names[index]);
    else if (which == DatePart::weekday)
        call.give_text(weekday_names[index]);
    else
        call.give_text(std::to_string(value));
}

void eomonth(const Call& call) {
    call.give(end_of_month(day_of_ticks(call.integer(0)), call.integer(1)));
}

void datefromparts(const Call& call) {
    const std::int64_t year = call.integer(0);
    const std::int64_t month = call.integer(1);
    const std::int64_t day = call.integer(2);
    const bool known = year >= 1 && year <= 9999 && month >= 1 && month <= 12 && day >= 1;
    if (!known || day > days_in_month(static_cast<int>(year), static_cast<int>(month)))
        raise_error(289, "Cannot construct data type date, some of the arguments have values which "
                         "are not valid.");
    call.give(
        days_since_1900(static_cast<int>(year), static_cast<int>(month), static_cast<int>(day)));
}

void isdate(const Call& call) {
    if (call.is_null(0) || call.text(0).empty()) return call.give(0);
    const ParsedDateTime parsed = parse_datetime(call.text(0), 0);
    call.give(parsed.reading == DateReading::read && !parsed.long_fraction &&
                      parsed.days * ticks_per_day >= first_datetime
                  ? 1
                  : 0);
}

constexpr FunctionEntry entries[] = {
    {"zf_dateadd", 3, Nature::pure, dateadd},
    {"zf_datediff", 3, Nature::pure, datediff},
    {"zf_datepart", 2, Nature::pure, datepart},
    {"zf_datename", 2, Nature::pure, datename},
    {"zf_eomonth", 2, Nature::pure, eomonth},
    {"zf_datefromparts", 3, Nature::pure, datefromparts},
    {"zf_isdate", 1, Nature::pure_with_null, isdate},
};

} // namespace

std::span<const FunctionEntry> date_functions() {
    return entries;
}

} // namespace engines
