// Looks at the clock every few thousand steps of SQLite's machine.
#include "engines/sqlite/executor/progress_meter.h"

namespace engines {
namespace {

// Some hundredths of a millisecond of work: rare enough to cost nothing.
constexpr int machine_steps = 1'000;

} // namespace

void ProgressMeter::listen(Session::BatchProgress listener, std::chrono::milliseconds every) {
    listener_ = std::move(listener);
    every_ = every;
    if (listener_)
        sqlite3_progress_handler(connection_, machine_steps, &ProgressMeter::called, this);
    else
        sqlite3_progress_handler(connection_, 0, nullptr, nullptr);
    begin(0);
}

void ProgressMeter::begin(std::int64_t all) {
    done_ = 0;
    all_ = all;
    if (listener_) last_ = Clock::now();
}

// Also looks between statements, for batches of many short ones.
void ProgressMeter::statement_done() {
    ++done_;
    if (listener_ && done_ < all_) go_on();
}

int ProgressMeter::called(void* self) {
    return static_cast<ProgressMeter*>(self)->go_on() ? 0 : 1;
}

bool ProgressMeter::go_on() {
    if (stop_) return false;
    if (Clock::now() - last_ < every_) return true;
    const bool wanted = listener_(done_, all_);
    last_ = Clock::now();
    if (!wanted) stop_ = true;
    return wanted;
}

} // namespace engines
