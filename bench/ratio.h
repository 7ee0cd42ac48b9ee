// Two ways of doing the same work, timed side by side in one run.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace bench {

// Processor seconds this process has used, all threads.
double cpu_seconds();

// One row of the table: the program's way against the same work written by hand. A budget is the
// greatest ratio, or the most processor milliseconds, that we allow ourselves; 0 means none.
struct Row {
    std::string work;
    double hand_ms = 0; // median processor milliseconds of the hand-written way; 0: there is none
    double ours_ms = 0; // median of ours
    double budget_ratio = 0;
    double budget_ms = 0;
    std::string note;
};

// One way of doing the work. `before` runs untimed ahead of each timed call.
struct Way {
    std::function<void()> work;
    std::function<void()> before = [] {};
};

// Runs the two in turn (hand, ours, hand, ours …) `rounds` times after one uncounted round and
// keeps the medians, so that a machine whose speed drifts bends both alike. `times` is how often a
// call repeats the work; the figures are for one.
Row measure(const std::string& work, int rounds, const Way& hand, const Way& ours, int times = 1);

// The same for work that has no hand-written twin.
Row measure_ours(const std::string& work, int rounds, const Way& ours, int times = 1);

// The table on standard output: work, hand, ours, ratio, budget, whether within it.
void print(const std::vector<Row>& rows);

} // namespace bench
