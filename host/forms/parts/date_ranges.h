// The date ranges that the menu 时段选择 offers.
#pragma once

#include <string>
#include <vector>

#include "host/values/date.h"

namespace host {

struct DateRange {
    Date first, last;
};

// Weeks begin on Monday, quarters in January, April, July and October.
struct DateRangeChoice {
    const char* name;    // of its menu item: "setdate02"
    const char* caption; // "本月"
    DateRange (*of)(Date today);
};
const std::vector<DateRangeChoice>& date_range_choices();

// The range of that name on that day; an unknown name is a mistake of the form: std::logic_error.
DateRange date_range(const std::string& name, Date today);

} // namespace host
