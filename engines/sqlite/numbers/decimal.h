// Exact decimal arithmetic on unscaled 128-bit integers: 12.50 of scale 2 is 1250.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "engines/value.h"

namespace engines {

enum class Rounding { half_away, cut };

// Ten to the power of exponent, 0 to 38.
Int128 power_of_ten(int exponent);

// The same value with another number of decimals. Fewer decimals round or cut; error 8115 when
// more of them do not fit 38 digits.
Int128 rescale(Int128 unscaled, int from, int to, Rounding rounding = Rounding::half_away);

// Error 8115 when the value has more than precision digits.
Int128 checked(Int128 unscaled, int precision);

// Operations on two decimals of scales a_scale and b_scale; the result has scale and at most
// precision digits, else error 8115. A product is rounded to its scale, a quotient is cut.
// Division and remainder by zero are error 8134.
Int128 add(Int128 a, int a_scale, Int128 b, int b_scale, int precision, int scale);
Int128 subtract(Int128 a, int a_scale, Int128 b, int b_scale, int precision, int scale);
Int128 multiply(Int128 a, int a_scale, Int128 b, int b_scale, int precision, int scale);
Int128 divide(Int128 a, int a_scale, Int128 b, int b_scale, int precision, int scale);
Int128 modulo(Int128 a, int a_scale, Int128 b, int b_scale, int precision, int scale);

// -1, 0 or 1 by value, whatever the scales.
int compare(Int128 a, int a_scale, Int128 b, int b_scale);

double to_double(Int128 unscaled, int scale);
// Rounds half away from zero; error 8115 beyond 38 digits and for what is no number.
Int128 from_double(double value, int scale);

// Digits with at most one point and a sign, blanks around them ignored; nothing when the text is
// anything else. Decimals beyond scale round half away from zero. overflow is set when the text is
// a number of more than 38 digits.
struct ParsedDecimal {
    Int128 unscaled = 0;
    bool overflow = false;
};
std::optional<ParsedDecimal> parse_decimal(std::string_view text, int scale);

// Storage of values beyond 64 bits: 16 bytes, most significant first, the sign bit flipped, so
// that the order of the bytes is the order of the numbers.
using WideBytes = std::array<char, 16>;
WideBytes to_wide(Int128 unscaled);
std::optional<Int128> from_wide(std::string_view bytes);

} // namespace engines
