// Cases that this system answers otherwise than they say, each with its reason.
#pragma once

#include <array>
#include <string_view>

namespace tests {

struct ConformanceException {
    std::string_view id;
    std::string_view reason;
};

inline constexpr std::array<ConformanceException, 0> conformance_exceptions{};

} // namespace tests
