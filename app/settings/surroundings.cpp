// Local time by the system, random bytes by libsodium.
#include "app/settings/surroundings.h"

#include <chrono>
#include <ctime>
#include <sodium.h>

namespace app {

host::DateTime SystemClock::now() const {
    using namespace std::chrono;
    const auto moment = system_clock::now();
    const std::time_t seconds = system_clock::to_time_t(moment);
    const auto milliseconds =
        duration_cast<std::chrono::milliseconds>(moment.time_since_epoch()).count() % 1000;
    std::tm local{};
    ::localtime_r(&seconds, &local);
    const auto day = host::Date::of(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
    host::DateTime now;
    now.date = fixed_day_ ? *fixed_day_ : day.value_or(host::Date{});
    now.milliseconds = static_cast<std::int32_t>(
        ((local.tm_hour * 60 + local.tm_min) * 60 + local.tm_sec) * 1000 + milliseconds);
    return now;
}

void SystemRandom::fill(unsigned char* bytes, std::size_t count) {
    ::randombytes_buf(bytes, count);
}

} // namespace app
