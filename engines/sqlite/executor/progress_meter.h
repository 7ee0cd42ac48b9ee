// Tells a listener how far a batch has come, while SQLite works.
#pragma once

#include <sqlite3.h>

#include <atomic>
#include <chrono>

#include "engines/session.h"

namespace engines {

// Asks the listener of Session::set_progress now and then, from inside SQLite's own loop.
class ProgressMeter {
public:
    // stop is set when the listener wants the batch to end. Both outlive the meter.
    ProgressMeter(sqlite3* connection, std::atomic<bool>& stop)
        : connection_(connection), stop_(stop) {}

    void listen(Session::BatchProgress listener, std::chrono::milliseconds every);
    // A batch of so many statements begins.
    void begin(std::int64_t all);
    void statement_done();

private:
    using Clock = std::chrono::steady_clock;
    static int called(void* self);
    bool go_on();

    sqlite3* connection_;
    std::atomic<bool>& stop_;
    Session::BatchProgress listener_;
    std::chrono::milliseconds every_{0};
    Clock::time_point last_;
    std::int64_t done_ = 0;
    std::int64_t all_ = 0;
};

} // namespace engines
