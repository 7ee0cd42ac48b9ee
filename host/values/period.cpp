// Accounting periods: "2024-03", and "2024-00" for the opening of a year.
#include "host/values/period.h"

#include <array>
#include <cstdio>

namespace host {

std::optional<Period> Period::parse(std::string_view text) {
    if (text.size() != 7 || text[4] != '-') return std::nullopt;
    int numbers[2] = {0, 0};
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i == 4) continue;
        if (text[i] < '0' || text[i] > '9') return std::nullopt;
        int& number = numbers[i > 4];
        number = number * 10 + (text[i] - '0');
    }
    if (numbers[0] < 1 || numbers[1] > 12) return std::nullopt;
    return of(numbers[0], numbers[1]);
}

Period Period::of(Date day) { return of(day.year(), day.month()); }

Period Period::of(int year, int month) {
    Period period;
    period.year_ = year;
    period.month_ = month;
    return period;
}

std::string Period::to_text() const {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02d", year_, month_);
    return text.data();
}

// The opening of a year counts as the month before its January.
Period Period::previous() const {
    return month_ <= 1 ? of(year_ - 1, 12) : of(year_, month_ - 1);
}

Period Period::next() const { return month_ == 12 ? of(year_ + 1, 1) : of(year_, month_ + 1); }

Date Period::first_day() const { return Date::of(year_, month_ == 0 ? 1 : month_, 1).value(); }

Date Period::last_day() const {
    return month_ == 0 ? first_day() : first_day().last_of_month();
}

bool Period::contains(Date day) const {
    return month_ != 0 && first_day() <= day && day <= last_day();
}

} // namespace host
