// Patterns of FORMAT for numbers and dates, in the invariant culture.
#include "engines/sqlite/text/format.h"

#include <algorithm>

#include "engines/calendar.h"
#include "engines/sqlite/dates/date_parts.h"
#include "engines/sqlite/dates/month_names.h"
#include "engines/sqlite/numbers/decimal.h"
#include "engines/value_text.h"

namespace engines {
namespace {

// How many digits a pattern asks for.
struct NumberPattern {
    int least_whole = 1;    // digits before the point, filled with zeros
    int least_decimals = 0; // decimals always shown
    int most_decimals = 0;
    bool thousands = false;
    bool percent = false;
    std::string before; // characters that stand around the number
    std::string after;
};

std::optional<NumberPattern> standard_pattern(std::string_view pattern) {
    if (pattern.empty() || pattern.size() > 3) return std::nullopt;
    const auto digits = [&](int otherwise) {
        if (pattern.size() == 1) return otherwise;
        int value = 0;
        for (const char c : pattern.substr(1)) value = value * 10 + (c - '0');
        return value;
    };
    for (const char c : pattern.substr(1))
        if (c < '0' || c > '9') return std::nullopt;
    NumberPattern result;
    switch (pattern.front() | 0x20) {
    case 'n': result.thousands = true; [[fallthrough]];
    case 'f': result.least_decimals = result.most_decimals = digits(2); return result;
    case 'd': result.least_whole = digits(1); return result;
    case 'p':
        result.percent = result.thousands = true;
        result.least_decimals = result.most_decimals = digits(2);
        result.after = " %";
        return result;
    case 'g': result.most_decimals = 15; return result;
    default: return std::nullopt;
    }
}

NumberPattern custom_pattern(std::string_view pattern) {
    NumberPattern result;
    result.least_whole = 0;
    bool started = false;
    bool after_point = false;
    for (const char c : pattern) {
        if (c == '.' && started && !after_point) {
            after_point = true;
        } else if (c == '0' || c == '#') {
            started = true;
            if (!after_point) {
                result.least_whole += c == '0';
            } else {
                ++result.most_decimals;
                if (c == '0') result.least_decimals = result.most_decimals;
            }
        } else if (c == ',' && started) {
            result.thousands = true;
        } else if (c != '\'' && c != '"' && c != '\\') {
            result.percent |= c == '%';
            (started ? result.after : result.before) += c;
        }
    }
    return result;
}

std::string apply(const NumberPattern& pattern, Int128 unscaled, int scale) {
    if (pattern.percent) unscaled = checked(unscaled * 100, 38);
    const int decimals = std::min(pattern.most_decimals, 30);
    std::string digits;
    const Int128 rounded = rescale(unscaled, scale, decimals);
    append_decimal(rounded < 0 ? -rounded : rounded, decimals, digits);
    std::size_t point = std::min(digits.find('.'), digits.size());
    while (digits.size() > point + 1 + static_cast<std::size_t>(pattern.least_decimals) &&
           digits.size() > point && digits.back() == '0')
        digits.pop_back();
    if (digits.ends_with('.')) digits.pop_back();
    if (pattern.least_whole == 0 && digits.starts_with('0')) {
        digits.erase(0, 1);
        --point;
    }
    const auto least = static_cast<std::size_t>(std::max(pattern.least_whole, 0));
    if (point < least) {
        digits.insert(0, least - point, '0');
        point = least;
    }
    if (pattern.thousands)
        for (std::size_t place = point; place > 3;) digits.insert(place -= 3, 1, ',');
    return pattern.before + (rounded < 0 ? "-" : "") + digits + pattern.after;
}

std::string padded(int value, std::size_t width) {
    std::string digits = std::to_string(value);
    if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
    return digits;
}

std::string date_element(char letter, std::size_t width, std::int64_t ticks) {
    const CalendarDay day = calendar_day(day_of_ticks(ticks));
    const int hour = part_of(DatePart::hour, ticks);
    const auto month = static_cast<std::size_t>(day.month - 1);
    const auto weekday = static_cast<std::size_t>(part_of(DatePart::weekday, ticks) - 1);
    switch (letter) {
    case 'y': return width <= 2 ? padded(day.year % 100, width) : padded(day.year, width);
    case 'M':
        if (width >= 4) return std::string(month_names[month]);
        if (width == 3) return std::string(month_names[month].substr(0, 3));
        return padded(day.month, width);
    case 'd':
        if (width >= 4) return std::string(weekday_names[weekday]);
        if (width == 3) return std::string(weekday_names[weekday].substr(0, 3));
        return padded(day.day, width);
    case 'H': return padded(hour, width);
    case 'h': return padded(hour % 12 == 0 ? 12 : hour % 12, width);
    case 'm': return padded(part_of(DatePart::minute, ticks), width);
    case 's': return padded(part_of(DatePart::second, ticks), width);
    case 'f':
        return padded(part_of(DatePart::millisecond, ticks), 3)
            .substr(0, std::min<std::size_t>(width, 3));
    default: return hour < 12 ? "AM" : "PM";
    }
}

std::string format_date(std::int64_t ticks, std::string_view pattern) {
    if (pattern == "d") pattern = "MM/dd/yyyy";
    if (pattern == "D") pattern = "dddd, dd MMMM yyyy";
    std::string out;
    for (std::size_t place = 0; place < pattern.size();) {
        const char letter = pattern[place];
        const std::size_t end = std::min(pattern.find_first_not_of(letter, place), pattern.size());
        const bool element = std::string_view("yMdHhmsft").find(letter) != std::string_view::npos;
        if (element)
            out += date_element(letter, end - place, ticks);
        else if (letter != '\'')
            out += pattern.substr(place, end - place);
        place = end;
    }
    return out;
}

} // namespace

std::optional<std::string> format_value(const Stored& value, const tsql::Type& type,
                                        std::string_view pattern) {
    if (type.is_date()) {
        const auto count = static_cast<std::int64_t>(value.integer);
        return format_date(type.kind == tsql::TypeKind::Date ? count * ticks_per_day : count,
                           pattern);
    }
    if (!type.is_number()) return std::nullopt;
    const auto standard = standard_pattern(pattern);
    const NumberPattern chosen = standard ? *standard : custom_pattern(pattern);
    if (value.form != Stored::Form::real) return apply(chosen, value.integer, type.stored_scale());
    const int scale = std::min(chosen.most_decimals + (chosen.percent ? 2 : 0), 15);
    return apply(chosen, from_double(value.real, scale), scale);
}

} // namespace engines
