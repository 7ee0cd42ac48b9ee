// Ranges of days as bookkeepers name them.
#include "host/forms/parts/date_ranges.h"

#include <stdexcept>

namespace host {

namespace {

Date monday_of(Date day) {
    const int since_monday = ((day.days() + 3) % 7 + 7) % 7; // 1970-01-01 was a Thursday
    return day.plus_days(-since_monday);
}

DateRange week(Date monday) { return {monday, monday.plus_days(6)}; }

DateRange months(Date first_of_month, int count) {
    return {first_of_month, first_of_month.plus_months(count).plus_days(-1)};
}

Date first_of_quarter(Date day) {
    return day.first_of_month().plus_months(-((day.month() - 1) % 3));
}

Date first_of_year(Date day) { return day.first_of_month().plus_months(1 - day.month()); }

} // namespace

const std::vector<DateRangeChoice>& date_range_choices() {
    static const std::vector<DateRangeChoice> choices = {
        {"setdate01", "今天", [](Date day) { return DateRange{day, day}; }},
        {"setdate10", "昨天",
         [](Date day) { return DateRange{day.plus_days(-1), day.plus_days(-1)}; }},
        {"setdate03", "本周", [](Date day) { return week(monday_of(day)); }},
        {"setdate08", "上周", [](Date day) { return week(monday_of(day).plus_days(-7)); }},
        {"setdate02", "本月", [](Date day) { return months(day.first_of_month(), 1); }},
        {"setdate04", "上月",
         [](Date day) { return months(day.first_of_month().plus_months(-1), 1); }},
        {"setdate05", "本季", [](Date day) { return months(first_of_quarter(day), 3); }},
        {"setdate09", "上季",
         [](Date day) { return months(first_of_quarter(day).plus_months(-3), 3); }},
        {"setdate06", "本年", [](Date day) { return months(first_of_year(day), 12); }},
        {"setdate07", "上年",
         [](Date day) { return months(first_of_year(day).plus_months(-12), 12); }},
        {"setdate11", "全部",
         [](Date) { return DateRange{*Date::of(1900, 1, 1), *Date::of(2099, 12, 31)}; }},
    };
    return choices;
}

DateRange date_range(const std::string& name, Date today) {
    for (const DateRangeChoice& choice : date_range_choices())
        if (name == choice.name) return choice.of(today);
    throw std::logic_error("no date range is called " + name);
}

} // namespace host
