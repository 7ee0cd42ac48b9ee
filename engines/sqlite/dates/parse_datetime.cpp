// A small reader: words, numbers and separators, then what they can mean together.
#include "engines/sqlite/dates/parse_datetime.h"

#include <array>
#include <optional>

#include "engines/calendar.h"
#include "engines/sqlite/dates/month_names.h"
#include "engines/sqlite/text/blanks.h"

namespace engines {
namespace {

enum class Order { month_first, day_first, year_first };

Order order_of(int style) {
    switch (style) {
    case 3:
    case 103:
    case 4:
    case 104:
    case 5:
    case 105:
    case 6:
    case 106:
    case 13:
    case 113: return Order::day_first;
    case 2:
    case 102:
    case 11:
    case 111:
    case 12:
    case 112:
    case 20:
    case 120:
    case 21:
    case 121:
    case 23:
    case 25:
    case 126:
    case 127: return Order::year_first;
    default: return Order::month_first;
    }
}

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}
bool is_digit(char c) {
    return c >= '0' && c <= '9';
}
bool is_letter(char c) {
    return lower(c) >= 'a' && lower(c) <= 'z';
}

// Month of an English name or its first three letters, 0 when it is none.
int month_of(std::string_view word) {
    for (std::size_t month = 0; month < month_names.size(); ++month) {
        const std::string_view name = month_names[month];
        if (word.size() != 3 && word.size() != name.size()) continue;
        bool equal = true;
        for (std::size_t i = 0; i < word.size(); ++i) equal &= lower(word[i]) == lower(name[i]);
        if (equal) return static_cast<int>(month) + 1;
    }
    return 0;
}

// Years of two digits lie between 1950 and 2049.
int full_year(int year, std::size_t digits) {
    if (digits > 2) return year;
    return year < 50 ? 2000 + year : 1900 + year;
}

struct Number {
    int value = 0;
    std::size_t digits = 0;
};

class Reader {
public:
    Reader(std::string_view text, int style) : rest_(without_blanks(text)), style_(style) {}

    ParsedDateTime read() {
        if (rest_.empty()) return {DateReading::read};
        ParsedDateTime result;
        if (!starts_with_time()) {
            const DateReading date = read_date(result.days);
            if (date != DateReading::read) return {date};
            if (rest_.empty()) return with(result, DateReading::read);
            if (lower(rest_.front()) == 't' && rest_.size() > 1 && is_digit(rest_[1]))
                rest_.remove_prefix(1);
            else if (rest_.front() != ' ')
                return {DateReading::malformed};
        }
        rest_ = without_blanks(rest_);
        return with(result, read_time(result));
    }

private:
    static ParsedDateTime with(ParsedDateTime result, DateReading reading) {
        result.reading = reading;
        return result;
    }

    std::optional<Number> number() {
        Number found;
        while (found.digits < rest_.size() && is_digit(rest_[found.digits])) {
            if (found.digits == 9) return std::nullopt;
            found.value = found.value * 10 + (rest_[found.digits] - '0');
            ++found.digits;
        }
        if (found.digits == 0) return std::nullopt;
        rest_.remove_prefix(found.digits);
        return found;
    }

    std::string_view word() {
        std::size_t length = 0;
        while (length < rest_.size() && is_letter(rest_[length])) ++length;
        const std::string_view found = rest_.substr(0, length);
        rest_.remove_prefix(length);
        return found;
    }

    void skip_blanks_and_comma() {
        rest_ = without_leading_blanks(rest_);
        if (rest_.starts_with(',')) rest_ = without_leading_blanks(rest_.substr(1));
    }

    // Digits followed by a colon or by AM or PM.
    bool starts_with_time() const {
        std::size_t place = 0;
        while (place < rest_.size() && is_digit(rest_[place])) ++place;
        if (place == 0 || place > 2) return false;
        while (place < rest_.size() && rest_[place] == ' ') ++place;
        if (place >= rest_.size()) return false;
        const char next = lower(rest_[place]);
        if (next == ':') return true;
        return (next == 'a' || next == 'p') && place + 1 < rest_.size() &&
               lower(rest_[place + 1]) == 'm' &&
               (place + 2 >= rest_.size() || !is_letter(rest_[place + 2]));
    }

    static DateReading day_number(int year, int month, int day, std::int64_t& days) {
        if (year < 1 || year > 9999 || month < 1 || month > 12 || day < 1) {
            return DateReading::out_of_range;
        }
        if (day > days_in_month(year, month)) return DateReading::out_of_range;
        days = days_since_1900(year, month, day);
        return DateReading::read;
    }

    DateReading read_date(std::int64_t& days) {
        if (is_letter(rest_.front())) return read_month_name_first(days);
        const auto first = number();
        if (!first) return DateReading::malformed;
        if (rest_.empty() || rest_.front() == 'T' || rest_.front() == 't')
            return read_compact(*first, days);
        const char separator = rest_.front();
        if (separator == ' ' || is_letter(separator)) {
            // A compact date may be followed by its time.
            if (first->digits >= 6) return read_compact(*first, days);
            skip_blanks_and_comma();
            return read_month_name_second(*first, days);
        }
        if (separator != '-' && separator != '/' && separator != '.') return DateReading::malformed;
        rest_.remove_prefix(1);
        if (!rest_.empty() && is_letter(rest_.front())) return read_month_name_second(*first, days);
        const auto second = number();
        if (!second || rest_.empty() || rest_.front() != separator) return DateReading::malformed;
        rest_.remove_prefix(1);
        const auto third = number();
        if (!third) return DateReading::malformed;
        return read_numbers(*first, *second, *third, days);
    }

    DateReading read_numbers(Number a, Number b, Number c, std::int64_t& days) const {
        if (a.digits == 4)
            return b.digits <= 2 && c.digits <= 2 ? day_number(a.value, b.value, c.value, days)
                                                  : DateReading::malformed;
        if (a.digits > 2 || b.digits > 2 || (c.digits != 2 && c.digits != 4 && c.digits != 1))
            return DateReading::malformed;
        if (order_of(style_) == Order::year_first && c.digits <= 2)
            return day_number(full_year(a.value, a.digits), b.value, c.value, days);
        const int year = full_year(c.value, c.digits);
        if (order_of(style_) == Order::day_first) return day_number(year, b.value, a.value, days);
        return day_number(year, a.value, b.value, days);
    }

    // yyyymmdd, yymmdd, or a year alone.
    static DateReading read_compact(Number digits, std::int64_t& days) {
        const int value = digits.value;
        if (digits.digits == 8)
            return day_number(value / 10000, value / 100 % 100, value % 100, days);
        if (digits.digits == 6)
            return day_number(full_year(value / 10000, 2), value / 100 % 100, value % 100, days);
        if (digits.digits == 4) return day_number(value, 1, 1, days);
        return DateReading::malformed;
    }

    // Mar 15 2016, March 15, 2016, Mar 2016
    DateReading read_month_name_first(std::int64_t& days) {
        const int month = month_of(word());
        skip_blanks_and_comma();
        if (rest_.starts_with('-')) rest_.remove_prefix(1);
        const auto first = number();
        if (month == 0 || !first) return DateReading::malformed;
        if (first->digits == 4) return day_number(first->value, month, 1, days);
        skip_blanks_and_comma();
        if (rest_.starts_with('-')) rest_.remove_prefix(1);
        const auto year = number();
        if (!year) return DateReading::malformed;
        return day_number(full_year(year->value, year->digits), month, first->value, days);
    }

    // 15 Mar 2016, 2016 Mar 15
    DateReading read_month_name_second(Number first, std::int64_t& days) {
        const int month = month_of(word());
        skip_blanks_and_comma();
        if (rest_.starts_with('-')) rest_.remove_prefix(1);
        const auto last = number();
        if (month == 0 || !last) return DateReading::malformed;
        if (first.digits == 4) return day_number(first.value, month, last->value, days);
        return day_number(full_year(last->value, last->digits), month, first.value, days);
    }

    DateReading read_time(ParsedDateTime& result) {
        const auto hour = number();
        if (!hour || hour->digits > 2) return DateReading::malformed;
        std::array<int, 2> parts{};
        std::size_t count = 0;
        while (count < parts.size() && rest_.starts_with(':')) {
            rest_.remove_prefix(1);
            const auto part = number();
            if (!part || part->digits > 2) return DateReading::malformed;
            parts[count++] = part->value;
        }
        std::int64_t fraction = 0;
        if (count == 2 && !rest_.empty() && (rest_.front() == '.' || rest_.front() == ':')) {
            const bool decimal = rest_.front() == '.';
            rest_.remove_prefix(1);
            if (!read_fraction(decimal, fraction, result.long_fraction))
                return DateReading::malformed;
        }
        int hours = hour->value;
        rest_ = without_leading_blanks(rest_);
        const bool half_day = !rest_.empty();
        if (half_day) {
            const std::string_view mark = word();
            if (!rest_.empty() || mark.size() != 2 || lower(mark[1]) != 'm')
                return DateReading::malformed;
            const bool afternoon = lower(mark[0]) == 'p';
            if (!afternoon && lower(mark[0]) != 'a') return DateReading::malformed;
            if (hours > 12 && !afternoon) return DateReading::out_of_range;
            if (hours < 12 && afternoon) hours += 12;
            if (hours == 12 && !afternoon) hours = 0;
        } else if (count == 0) {
            return DateReading::malformed;
        }
        if (hours > 23 || parts[0] > 59 || parts[1] > 59) return DateReading::out_of_range;
        result.nanoseconds = ((hours * 60LL + parts[0]) * 60 + parts[1]) * 1'000'000'000 + fraction;
        return DateReading::read;
    }

    // After a point decimals of the second, after a colon milliseconds.
    bool read_fraction(bool decimal, std::int64_t& nanoseconds, bool& long_fraction) {
        const auto part = number();
        if (!part || (!decimal && part->digits > 3)) return false;
        std::int64_t value = part->value;
        if (!decimal) {
            nanoseconds = value * 1'000'000;
            return true;
        }
        long_fraction = part->digits > 3;
        for (std::size_t i = part->digits; i < 9; ++i) value *= 10;
        nanoseconds = value;
        return true;
    }

    std::string_view rest_;
    int style_;
};

} // namespace

ParsedDateTime parse_datetime(std::string_view text, int style) {
    return Reader(text, style).read();
}

} // namespace engines
