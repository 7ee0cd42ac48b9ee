// How often a login may be tried.
#pragma once

#include <chrono>
#include <functional>
#include <string>

namespace app {

// After three refusals in a row nothing is tried for a while, so that nobody guesses a password by
// patience. A login that succeeds begins the count anew.
//
//     LoginAttempts attempts;
//     const std::string refusal = attempts.attempt([&] { return try_it(); });
class LoginAttempts {
public:
    using Moment = std::chrono::steady_clock::time_point;
    explicit LoginAttempts(std::function<Moment()> now = std::chrono::steady_clock::now)
        : now_(std::move(now)) {}

    // Runs `log_in` and answers what it answers, "" for success; while the pause lasts, the
    // sentence that tells how many seconds are left.
    std::string attempt(const std::function<std::string()>& log_in);

private:
    std::function<Moment()> now_;
    Moment free_at_{};
    int refused_ = 0;
};

} // namespace app
