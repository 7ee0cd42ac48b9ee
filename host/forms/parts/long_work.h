// Work in many equal steps that tells how far it has come and can be stopped.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace host {

// Asks the user interface about ten times a second, not with every step.
//
//     LongWork work("正在导出…", rows);
//     for (int row = 0; row < rows; ++row)
//         if (!work.step()) return; // the person has had enough
class LongWork {
public:
    LongWork(std::string what, std::int64_t steps);
    ~LongWork(); // its end is told too
    LongWork(const LongWork&) = delete;
    LongWork& operator=(const LongWork&) = delete;

    // One step is done; false when the work is to stop.
    bool step();

private:
    std::string what_;
    std::int64_t steps_;
    std::int64_t done_ = 0;
    std::chrono::steady_clock::time_point last_;
    bool told_ = false;
    bool stopped_ = false;
};

} // namespace host
