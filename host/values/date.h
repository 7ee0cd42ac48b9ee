// A calendar day and a moment, as bookkeeping uses them.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace host {

// A day of the Gregorian calendar, 0001-01-01 to 9999-12-31, kept as days since 1970-01-01.
class Date {
public:
    constexpr Date() = default;
    static Date from_days(std::int32_t days_since_1970) {
        Date date;
        date.days_ = days_since_1970;
        return date;
    }
    static std::optional<Date> of(int year, int month, int day);
    // "2024-03-05", also "2024-3-5", "2024/3/5", "20240305"; what follows the day is ignored.
    static std::optional<Date> parse(std::string_view text);

    int year() const;
    int month() const;
    int day() const;
    std::int32_t days() const { return days_; }
    std::string to_text() const; // "2024-03-05"

    Date plus_days(int days) const { return from_days(days_ + days); }
    // The same day of another month, or that month's last day where it is shorter.
    Date plus_months(int months) const;
    Date first_of_month() const;
    Date last_of_month() const;
    friend int operator-(Date a, Date b) { return a.days_ - b.days_; }
    friend constexpr auto operator<=>(Date, Date) = default;

private:
    std::int32_t days_ = 0;
};

// A moment: a day and the milliseconds since its midnight.
struct DateTime {
    Date date;
    std::int32_t milliseconds = 0;
    static std::optional<DateTime> parse(std::string_view text);
    // "2024-03-05", or "2024-03-05 14:05:06" when it is not midnight.
    std::string to_text() const;
    friend constexpr auto operator<=>(DateTime, DateTime) = default;
};

} // namespace host
