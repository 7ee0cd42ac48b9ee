// Clock, settings and random source of a test: fixed, in memory, the same in every run.
#include "tests/support/surroundings.h"

namespace tests {

FixedClock::FixedClock(const std::string& today) {
    constexpr std::int32_t nine = 9 * 60 * 60 * 1000;
    now_ = {host::Date::parse(today).value(), nine};
}

std::string MemorySettings::read(const std::string& section, const std::string& name,
                                 const std::string& fallback) const {
    const auto at = values_.find({section, name});
    return at == values_.end() ? fallback : at->second;
}

void MemorySettings::write(const std::string& section, const std::string& name,
                           const std::string& value) {
    values_[{section, name}] = value;
}

void CountedBytes::fill(unsigned char* bytes, std::size_t count) {
    for (std::size_t at = 0; at < count; ++at) {
        state_ = state_ * 6364136223846793005U + 1442695040888963407U;
        bytes[at] = static_cast<unsigned char>(state_ >> 56);
    }
}

} // namespace tests
