// Looks at the clock now and then, and at the person's wish.
#include "host/forms/parts/long_work.h"

#include "host/ports/host.h"

namespace host {

namespace {

constexpr std::chrono::milliseconds between_reports{100};
// The clock itself is not asked with every step.
constexpr std::int64_t steps_a_look = 256;

} // namespace

LongWork::LongWork(std::string what, std::int64_t steps)
    : what_(std::move(what)), steps_(steps), last_(std::chrono::steady_clock::now()) {}

LongWork::~LongWork() {
    if (told_ && the_host().ui != nullptr) the_host().ui->progress(what_, 1, 1);
}

bool LongWork::step() {
    if (++done_ % steps_a_look != 0 || stopped_ || done_ >= steps_) return !stopped_;
    const auto now = std::chrono::steady_clock::now();
    if (now - last_ < between_reports || the_host().ui == nullptr) return true;
    told_ = true;
    stopped_ = !the_host().ui->progress(what_, done_, steps_);
    last_ = std::chrono::steady_clock::now();
    return !stopped_;
}

} // namespace host
