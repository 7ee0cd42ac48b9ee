// Clock, settings and random source of a test: fixed, in memory, the same in every run.
#pragma once

#include <map>
#include <string>
#include <utility>

#include "host/ports/surroundings.h"

namespace tests {

// Nine in the morning of the day given.
class FixedClock final : public host::Clock {
public:
    explicit FixedClock(const std::string& today);
    host::DateTime now() const override { return now_; }

private:
    host::DateTime now_;
};

class MemorySettings final : public host::SettingsStore {
public:
    std::string read(const std::string& section, const std::string& name,
                     const std::string& fallback) const override;
    void write(const std::string& section, const std::string& name,
               const std::string& value) override;

private:
    std::map<std::pair<std::string, std::string>, std::string> values_;
};

// Bytes that differ from call to call and are the same in every run.
class CountedBytes final : public host::RandomSource {
public:
    void fill(unsigned char* bytes, std::size_t count) override;

private:
    std::uint64_t state_ = 1;
};

} // namespace tests
