// Schoolbook multiplication on 64-bit halves and binary long division.
#include "engines/sqlite/numbers/wide_product.h"

#include <cstdint>

namespace engines {
namespace {

constexpr Magnitude low_half(Magnitude value) {
    return static_cast<std::uint64_t>(value);
}
constexpr Magnitude high_half(Magnitude value) {
    return value >> 64;
}

} // namespace

WideProduct product_of(Magnitude a, Magnitude b) {
    const Magnitude low = low_half(a) * low_half(b);
    const Magnitude cross = high_half(a) * low_half(b) + high_half(low);
    const Magnitude other = low_half(a) * high_half(b) + low_half(cross);
    return {high_half(a) * high_half(b) + high_half(cross) + high_half(other),
            other << 64 | low_half(low)};
}

WideProduct times_ten(WideProduct value) {
    const WideProduct low = product_of(value.low, 10);
    return {value.high * 10 + low.high, low.low};
}

std::optional<Quotient> divided(WideProduct dividend, Magnitude divisor) {
    if (dividend.high >= divisor) return std::nullopt;
    Magnitude rest = dividend.high;
    Magnitude quotient = 0;
    for (int bit = 127; bit >= 0; --bit) {
        rest = rest << 1 | (dividend.low >> bit & 1);
        quotient <<= 1;
        if (rest >= divisor) {
            rest -= divisor;
            quotient |= 1;
        }
    }
    return Quotient{quotient, rest};
}

} // namespace engines
