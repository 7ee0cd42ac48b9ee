// The clock and the random source of the running program.
#pragma once

#include <optional>

#include "host/ports/surroundings.h"

namespace app {

// Local time. A fixed day replaces today's date; the time of day goes on.
class SystemClock : public host::Clock {
public:
    explicit SystemClock(std::optional<host::Date> fixed_day = {}) : fixed_day_(fixed_day) {}
    host::DateTime now() const override;

private:
    std::optional<host::Date> fixed_day_;
};

class SystemRandom : public host::RandomSource {
public:
    void fill(unsigned char* bytes, std::size_t count) override;
};

} // namespace app
