// Hands requests to the driver's thread and its answers back, one at a time.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <string>

#include "automation/drive/ports.h"

namespace tests {

// The test's thread calls ask(), inside() and finish(); the driver's thread the two overrides and
// ended(). While one works the other waits, so neither sees the other's objects half changed.
class HandOff final : public automation::RequestLines, public automation::AnswerLines {
public:
    // Hands a line over and waits for its answer. "" when the driver has ended instead.
    std::string ask(std::string line);
    // Runs work on the driver's thread while it waits for a request.
    void inside(std::function<void()> work);
    void finish(); // no more requests

    std::optional<std::string> next() override;
    void write(const std::string& line) override;
    void ended(); // the driver's thread will take nothing more

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::string> lines_;
    std::deque<std::string> answers_;
    std::function<void()> work_;
    bool finished_ = false;
    bool ended_ = false;
};

} // namespace tests
