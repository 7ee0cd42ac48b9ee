// Hands requests to the driver's thread and its answers back, one at a time.
#include "tests/support/hand_off.h"

namespace tests {

std::string HandOff::ask(std::string line) {
    std::unique_lock lock(mutex_);
    lines_.push_back(std::move(line));
    changed_.notify_all();
    changed_.wait(lock, [&] { return !answers_.empty() || ended_; });
    if (answers_.empty()) return {};
    std::string answer = std::move(answers_.front());
    answers_.pop_front();
    return answer;
}

void HandOff::inside(std::function<void()> work) {
    std::unique_lock lock(mutex_);
    work_ = std::move(work);
    changed_.notify_all();
    changed_.wait(lock, [&] { return !work_ || ended_; });
}

void HandOff::finish() {
    const std::lock_guard lock(mutex_);
    finished_ = true;
    changed_.notify_all();
}

std::optional<std::string> HandOff::next() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [&] { return work_ || !lines_.empty() || finished_; });
        if (work_) {
            lock.unlock();
            work_();
            lock.lock();
            work_ = nullptr;
            changed_.notify_all();
        } else if (!lines_.empty()) {
            std::string line = std::move(lines_.front());
            lines_.pop_front();
            return line;
        } else {
            return std::nullopt;
        }
    }
}

void HandOff::write(const std::string& line) {
    const std::lock_guard lock(mutex_);
    answers_.push_back(line);
    changed_.notify_all();
}

void HandOff::ended() {
    const std::lock_guard lock(mutex_);
    ended_ = true;
    changed_.notify_all();
}

} // namespace tests
