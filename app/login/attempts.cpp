// Counts refusals and makes whoever guesses wait.
#include "app/login/attempts.h"

namespace app {

namespace {

constexpr int most_refusals = 3;
constexpr std::chrono::seconds pause{30};

std::string wait_for(std::chrono::seconds seconds) {
    return "已连续 " + std::to_string(most_refusals) + " 次登录不成功,请等 " +
           std::to_string(seconds.count()) + " 秒再试!";
}

} // namespace

std::string LoginAttempts::attempt(const std::function<std::string()>& log_in) {
    const auto left = std::chrono::ceil<std::chrono::seconds>(free_at_ - now_());
    if (left.count() > 0) return wait_for(left);
    const std::string refusal = log_in();
    refused_ = refusal.empty() ? 0 : refused_ + 1;
    if (refused_ < most_refusals) return refusal;
    refused_ = 0;
    free_at_ = now_() + pause;
    return refusal + wait_for(pause);
}

} // namespace app
