// Medians of interleaved runs, and the table they are shown in.
#include "bench/ratio.h"

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace bench {

double cpu_seconds() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

namespace {

double timed_ms(const Way& way, int times) {
    way.before();
    const double start = cpu_seconds();
    way.work();
    return (cpu_seconds() - start) * 1000.0 / times;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

std::string verdict(const Row& row) {
    if (row.budget_ratio > 0 && row.hand_ms > 0)
        return row.ours_ms / row.hand_ms <= row.budget_ratio ? "within" : "over";
    if (row.budget_ms > 0) return row.ours_ms <= row.budget_ms ? "within" : "over";
    return "";
}

} // namespace

Row measure(const std::string& work, int rounds, const Way& hand, const Way& ours, int times) {
    timed_ms(hand, times);
    timed_ms(ours, times);
    std::vector<double> hand_ms, ours_ms;
    for (int round = 0; round < rounds; ++round) {
        hand_ms.push_back(timed_ms(hand, times));
        ours_ms.push_back(timed_ms(ours, times));
    }
    Row row;
    row.work = work;
    row.hand_ms = median(hand_ms);
    row.ours_ms = median(ours_ms);
    return row;
}

Row measure_ours(const std::string& work, int rounds, const Way& ours, int times) {
    timed_ms(ours, times);
    std::vector<double> ours_ms;
    for (int round = 0; round < rounds; ++round) ours_ms.push_back(timed_ms(ours, times));
    Row row;
    row.work = work;
    row.ours_ms = median(ours_ms);
    return row;
}

void print(const std::vector<Row>& rows) {
    std::printf("%-58s %10s %10s %8s %12s %s\n", "work (processor time)", "hand ms", "ours ms",
                "ratio", "budget", "");
    for (const Row& row : rows) {
        std::string hand = "-", ratio = "-", budget = "-";
        char text[64];
        if (row.hand_ms > 0) {
            std::snprintf(text, sizeof text, "%.4f", row.hand_ms);
            hand = text;
            std::snprintf(text, sizeof text, "%.2f", row.ours_ms / row.hand_ms);
            ratio = text;
        }
        if (row.budget_ratio > 0) {
            std::snprintf(text, sizeof text, "<= %.2f x", row.budget_ratio);
            budget = text;
        } else if (row.budget_ms > 0) {
            std::snprintf(text, sizeof text, "<= %g ms", row.budget_ms);
            budget = text;
        }
        std::printf("%-58s %10s %10.4f %8s %12s %s %s\n", row.work.c_str(), hand.c_str(),
                    row.ours_ms, ratio.c_str(), budget.c_str(), verdict(row).c_str(),
                    row.note.c_str());
    }
}

} // namespace bench
