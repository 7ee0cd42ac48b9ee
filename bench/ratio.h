// Two ways of doing the same work, timed side by side in one run.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace bench {

// Processor seconds this process has used, all threads.
double cpu_seconds();

// One row of the table: the program's way against the same work written by hand. `budget` is the
// greatest ratio we allow ourselves; 0 means the figure has an absolute budget instead.
struct Row {
    std::string work;
    double hand_ms = 0; // median processor milliseconds of the hand-written way; 0 when there is none
    double ours_ms = 0; // median of ours
    double budget_ratio = 0;
    double budget_ms = 0;
    std::string note;
};

// Runs the two in turn (hand, ours, hand, ours …) `rounds` times after one uncounted round and
// keeps the medians, so that a machine whose speed drifts bends both alike.
Row measure(const std::string& work, int rounds, const std::function<void()>& hand,
            const std::function<void()>& ours);

// Processor milliseconds of one call: the median of `rounds` after one uncounted call.
double median_ms(int rounds, const std::function<void()>& work);

// The table on standard output: work, hand, ours, ratio, budget, verdict in words.
void print(const std::vector<Row>& rows);

} // namespace bench
