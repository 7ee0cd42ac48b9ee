// Products of 128-bit magnitudes in 256 bits, and their division.
#pragma once

#include <optional>

#include "engines/value.h"

namespace engines {

__extension__ typedef unsigned __int128 Magnitude;

// high * 2^128 + low
struct WideProduct {
    Magnitude high = 0;
    Magnitude low = 0;
};

WideProduct product_of(Magnitude a, Magnitude b);

// Ten times the value; the caller knows that it fits 256 bits.
WideProduct times_ten(WideProduct value);

struct Quotient {
    Magnitude quotient = 0;
    Magnitude rest = 0;
};
// Nothing when the quotient does not fit 128 bits. The divisor is not zero and below 2^127.
std::optional<Quotient> divided(WideProduct dividend, Magnitude divisor);

} // namespace engines
