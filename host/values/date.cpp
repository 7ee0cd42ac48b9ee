// Calendar days and moments: reading, writing, moving by months.
#include "host/values/date.h"

#include <array>
#include <cctype>
#include <chrono>
#include <cstdio>

namespace host {

namespace {

std::chrono::year_month_day civil(std::int32_t days) {
    return std::chrono::year_month_day(std::chrono::sys_days(std::chrono::days(days)));
}

bool is_digit(char c) { return c >= '0' && c <= '9'; }

// A whole number of at most `width` digits at the front of `text`, taken off it; -1 for none.
int take_number(std::string_view& text, std::size_t width) {
    int value = 0;
    std::size_t used = 0;
    while (used < width && used < text.size() && is_digit(text[used]))
        value = value * 10 + (text[used++] - '0');
    text.remove_prefix(used);
    return used == 0 ? -1 : value;
}

bool take_separator(std::string_view& text, std::string_view allowed) {
    if (text.empty() || allowed.find(text.front()) == std::string_view::npos) return false;
    text.remove_prefix(1);
    return true;
}

// The day at the front of `text`, taken off it.
std::optional<Date> take_date(std::string_view& text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    const std::string_view whole = text;
    const int year = take_number(text, 4);
    if (whole.size() - text.size() != 4) return std::nullopt;
    const bool separated = take_separator(text, "-/.");
    const int month = take_number(text, 2);
    if (separated && !take_separator(text, "-/.")) return std::nullopt;
    const int day = take_number(text, 2);
    if (!text.empty() && is_digit(text.front())) return std::nullopt;
    return Date::of(year, month, day);
}

} // namespace

std::optional<Date> Date::of(int year, int month, int day) {
    if (year < 1 || year > 9999 || month < 1 || day < 1) return std::nullopt;
    const std::chrono::year_month_day ymd{std::chrono::year(year),
                                          std::chrono::month(static_cast<unsigned>(month)),
                                          std::chrono::day(static_cast<unsigned>(day))};
    if (!ymd.ok()) return std::nullopt;
    return from_days(static_cast<std::int32_t>(
        std::chrono::sys_days(ymd).time_since_epoch().count()));
}

std::optional<Date> Date::parse(std::string_view text) { return take_date(text); }

int Date::year() const { return static_cast<int>(civil(days_).year()); }
int Date::month() const { return static_cast<int>(static_cast<unsigned>(civil(days_).month())); }
int Date::day() const { return static_cast<int>(static_cast<unsigned>(civil(days_).day())); }

std::string Date::to_text() const {
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02d", year(), month(), day());
    return text.data();
}

Date Date::plus_months(int months) const {
    const std::chrono::year_month_day from = civil(days_);
    const auto moved = from + std::chrono::months(months);
    const auto last = std::chrono::year_month_day(moved.year() / moved.month() / std::chrono::last);
    const auto to = moved.ok() ? moved : last;
    return from_days(static_cast<std::int32_t>(
        std::chrono::sys_days(to).time_since_epoch().count()));
}

Date Date::first_of_month() const { return plus_days(1 - day()); }
Date Date::last_of_month() const { return first_of_month().plus_months(1).plus_days(-1); }

std::optional<DateTime> DateTime::parse(std::string_view text) {
    DateTime result;
    const auto date = take_date(text);
    if (!date) return std::nullopt;
    result.date = *date;
    if (!take_separator(text, " T")) {
        if (text.empty()) return result;
        return std::nullopt;
    }
    const int hour = take_number(text, 2);
    if (hour < 0) return text.empty() ? std::optional(result) : std::nullopt;
    const int minute = take_separator(text, ":") ? take_number(text, 2) : -1;
    const int second = take_separator(text, ":") ? take_number(text, 2) : 0;
    int milliseconds = 0;
    if (take_separator(text, ".")) {
        const std::size_t before = text.size();
        milliseconds = take_number(text, 3);
        for (std::size_t digits = before - text.size(); digits < 3; ++digits) milliseconds *= 10;
        while (!text.empty() && is_digit(text.front())) text.remove_prefix(1);
    }
    if (hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59 || milliseconds < 0)
        return std::nullopt;
    if (!text.empty()) return std::nullopt;
    result.milliseconds = ((hour * 60 + minute) * 60 + second) * 1000 + milliseconds;
    return result;
}

std::string DateTime::to_text() const {
    if (milliseconds == 0) return date.to_text();
    const int seconds = milliseconds / 1000;
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), " %02d:%02d:%02d", seconds / 3600, seconds / 60 % 60,
                  seconds % 60);
    return date.to_text() + text.data();
}

} // namespace host
