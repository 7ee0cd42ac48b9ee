// An accounting period, a month of the books: "2024-03". Month "00" is the opening of its year.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/values/date.h"

namespace host {

// Periods compare as their texts do. The period before a January is December of the year before.
class Period {
public:
    static std::optional<Period> parse(std::string_view text);
    static Period of(Date day);
    static Period of(int year, int month);

    int year() const { return year_; }
    int month() const { return month_; } // 0 for the opening of the year
    std::string to_text() const;
    Period previous() const;
    Period next() const;
    Date first_day() const;
    Date last_day() const;
    bool contains(Date day) const;
    friend auto operator<=>(const Period&, const Period&) = default;

private:
    int year_ = 1;
    int month_ = 1;
};

} // namespace host
