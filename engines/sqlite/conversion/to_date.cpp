// Any type to datetime, smalldatetime or date.
#include "engines/calendar.h"
#include "engines/sqlite/conversion/convert.h"
#include "engines/sqlite/dates/date_parts.h"
#include "engines/sqlite/dates/parse_datetime.h"
#include "engines/sqlite/numbers/decimal.h"
#include "engines/sqlite/raise.h"

namespace engines {
namespace {

using tsql::Type;
using tsql::TypeKind;

[[noreturn]] void raise_malformed() {
    raise_error(241, "Conversion failed when converting date and/or time from character string.");
}

[[noreturn]] void raise_out_of_range(const Type& from, const Type& to) {
    raise_error(242, "The conversion of a " + Type::of(from.kind).text() + " data type to a " +
                         Type::of(to.kind).text() +
                         " data type resulted in an out-of-range value.");
}

// Of the type's own name, without the length.
[[noreturn]] void raise_text_out_of_range(const Type& from, const Type& to) {
    Type plain = from;
    plain.length = Type::max_length;
    std::string name = plain.text();
    name.resize(name.find('(') == std::string::npos ? name.size() : name.find('('));
    raise_error(242, "The conversion of a " + name + " data type to a " + to.text() +
                         " data type resulted in an out-of-range value.");
}

// smalldatetime keeps minutes: 29.998 seconds go down, 29.999 up.
Int128 to_minute(Int128 ticks) {
    constexpr std::int64_t minute = 60 * ticks_per_second;
    const std::int64_t day = day_of_ticks(static_cast<std::int64_t>(ticks)) * ticks_per_day;
    const std::int64_t rest = static_cast<std::int64_t>(ticks) - day;
    return day + (rest + minute / 2) / minute * minute;
}

bool in_range(Int128 ticks, TypeKind kind) {
    if (kind == TypeKind::SmallDateTime)
        return ticks >= 0 && ticks < Int128(days_since_1900(2079, 6, 7)) * ticks_per_day;
    return ticks >= first_datetime && ticks <= last_datetime;
}

Int128 date_from_text(std::string_view text, const Type& from, const Type& to, int style) {
    const ParsedDateTime parsed = parse_datetime(text, style);
    if (to.kind == TypeKind::Date) {
        if (parsed.reading != DateReading::read) raise_malformed();
        return parsed.days;
    }
    if (parsed.reading == DateReading::out_of_range) raise_text_out_of_range(from, to);
    if (parsed.reading == DateReading::malformed || parsed.long_fraction) raise_malformed();
    // The nearest tick: .001 is .000, .002 is .003, .999 the next second.
    const std::int64_t milliseconds = parsed.nanoseconds / 1'000'000;
    Int128 ticks = parsed.days * ticks_per_day + (milliseconds * 3 + 5) / 10;
    if (to.kind == TypeKind::SmallDateTime) ticks = to_minute(ticks);
    if (!in_range(ticks, to.kind)) raise_text_out_of_range(from, to);
    return ticks;
}

// Numbers are days since 1900-01-01, their fraction the time.
Int128 ticks_of_number(const Stored& value, const Type& from) {
    if (value.form == Stored::Form::real) {
        const double ticks = value.real * static_cast<double>(ticks_per_day);
        if (!(ticks > -1e15 && ticks < 1e15)) raise_overflow("datetime");
        return static_cast<Int128>(ticks < 0 ? ticks - 0.5 : ticks + 0.5);
    }
    const Int128 limit = power_of_ten(9) * power_of_ten(from.stored_scale());
    if (value.integer > limit || value.integer < -limit) raise_overflow("datetime");
    return multiply(value.integer, from.stored_scale(), ticks_per_day, 0, 38, 0);
}

} // namespace

Int128 convert_to_date(const Stored& value, const Type& from, const Type& to, int style) {
    if (from.is_text()) return date_from_text(value.text, from, to, style);
    if (from.kind == TypeKind::Date && to.kind == TypeKind::Date) return value.integer;
    Int128 ticks = value.integer;
    if (from.kind == TypeKind::Date) {
        ticks *= ticks_per_day;
        if (!in_range(ticks, to.kind)) raise_out_of_range(from, to);
    } else if (!from.is_date()) {
        ticks = ticks_of_number(value, from);
    }
    if (to.kind == TypeKind::Date) return day_of_ticks(static_cast<std::int64_t>(ticks));
    if (to.kind == TypeKind::SmallDateTime) ticks = to_minute(ticks);
    if (!in_range(ticks, to.kind)) {
        if (from.is_date()) raise_out_of_range(from, to);
        raise_overflow(to.text());
    }
    return ticks;
}

} // namespace engines
