// Which periods the books have had open.
#pragma once

#include <string>

#include "engines/session.h"

namespace automation {

// Periods as texts "2024-03"; all empty while the books are not set up.
struct OpenPeriods {
    std::string first;   // where the books begin
    std::string current; // the open one
    // The latest that was ever open: later than the current one after a closing was taken back.
    std::string latest;
    bool set_up() const { return !first.empty() && !current.empty(); }
};

// Throws engines::Failure. What was closed is read from the operation log.
OpenPeriods read_open_periods(engines::Session& session);

// A month of some year: "2024-03", not "2024-00" and not "2024-3".
bool is_period(const std::string& text);

// Of periods only.
std::string previous_period(const std::string& period);
std::string next_period(const std::string& period);

} // namespace automation
