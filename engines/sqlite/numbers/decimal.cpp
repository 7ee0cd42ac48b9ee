// Decimal arithmetic; what does not fit 128 bits on the way goes through 256.
#include "engines/sqlite/numbers/decimal.h"

#include <charconv>
#include <cmath>
#include <cstdlib>

#include "engines/sqlite/numbers/wide_product.h"
#include "engines/sqlite/raise.h"

namespace engines {
namespace {

constexpr int max_digits = 38;

constexpr std::array<Int128, max_digits + 1> make_powers() {
    std::array<Int128, max_digits + 1> powers{};
    powers[0] = 1;
    for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = powers[i - 1] * 10;
    return powers;
}
constexpr std::array<Int128, max_digits + 1> powers = make_powers();

[[noreturn]] void overflow() {
    raise_overflow("numeric");
}

// The quotient of the value and a power of ten.
Int128 shrink(Int128 value, int digits, Rounding rounding) {
    if (digits > max_digits) return 0;
    const Int128 divisor = powers[static_cast<std::size_t>(digits)];
    const Int128 quotient = value / divisor;
    if (rounding == Rounding::cut) return quotient;
    const Int128 rest = value % divisor;
    const Int128 half = divisor / 2;
    if (value >= 0) return rest >= half ? quotient + 1 : quotient;
    return -rest >= half ? quotient - 1 : quotient;
}

Magnitude size_of(Int128 value) {
    return value < 0 ? -static_cast<Magnitude>(value) : static_cast<Magnitude>(value);
}

Int128 signed_value(Magnitude size, bool negative) {
    if (size > size_of(powers[max_digits]) - 1) overflow();
    return negative ? -static_cast<Int128>(size) : static_cast<Int128>(size);
}

// Both values at the larger of the two scales.
struct Aligned {
    Int128 a;
    Int128 b;
    int scale;
};
Aligned align(Int128 a, int a_scale, Int128 b, int b_scale) {
    if (a_scale == b_scale) return {a, b, a_scale};
    if (a_scale < b_scale) return {rescale(a, a_scale, b_scale), b, b_scale};
    return {a, rescale(b, b_scale, a_scale), a_scale};
}

} // namespace

Int128 power_of_ten(int exponent) {
    return powers.at(static_cast<std::size_t>(exponent));
}

Int128 rescale(Int128 value, int from, int to, Rounding rounding) {
    if (from == to || value == 0) return value;
    if (to < from) return shrink(value, from - to, rounding);
    if (to - from > max_digits) overflow();
    Int128 result = 0;
    if (__builtin_mul_overflow(value, power_of_ten(to - from), &result)) overflow();
    return checked(result, max_digits);
}

Int128 checked(Int128 value, int precision) {
    const Int128 bound = power_of_ten(precision);
    if (value >= bound || value <= -bound) overflow();
    return value;
}

Int128 add(Int128 a, int a_scale, Int128 b, int b_scale, int precision, int scale) {
    const Aligned both = align(a, a_scale, b, b_scale);
    return checked(rescale(both.a + both.b, both.scale, scale), precision);
}

Int128 subtract(Int128 a, int a_scale, Int128 b, int b_scale, int precision, int scale) {
    return add(a, a_scale, -b, b_scale, precision, scale);
}

Int128 multiply(Int128 a, int a_scale, Int128 b, int b_scale, int precision, int scale) {
    Int128 product = 0;
    const int full_scale = a_scale + b_scale;
    if (!__builtin_mul_overflow(a, b, &product))
        return checked(rescale(product, full_scale, scale), precision);
    if (full_scale <= scale) overflow();
    // Too wide for 128 bits: divide the 256-bit product by the decimals that go.
    const WideProduct wide = product_of(size_of(a), size_of(b));
    const int digits = full_scale - scale;
    const Magnitude divisor = size_of(power_of_ten(digits < max_digits ? digits : max_digits));
    const auto result = divided(wide, divisor);
    if (!result) overflow();
    Magnitude quotient = result->quotient;
    if (digits <= max_digits && result->rest >= divisor / 2) ++quotient;
    Int128 value = signed_value(quotient, (a < 0) != (b < 0));
    if (digits > max_digits) value = shrink(value, digits - max_digits, Rounding::half_away);
    return checked(value, precision);
}

Int128 divide(Int128 a, int a_scale, Int128 b, int b_scale, int precision, int scale) {
    if (b == 0) raise_division_by_zero();
    const int shift = scale - a_scale + b_scale;
    if (shift < 0) {
        // The quotient is cut twice, which cuts it once.
        return checked(shrink(a / b, -shift, Rounding::cut), precision);
    }
    Int128 dividend = 0;
    if (shift <= max_digits && !__builtin_mul_overflow(a, power_of_ten(shift), &dividend))
        return checked(dividend / b, precision);
    WideProduct wide = product_of(size_of(a), size_of(power_of_ten(std::min(shift, max_digits))));
    for (int i = max_digits; i < shift; ++i) wide = times_ten(wide);
    const auto result = divided(wide, size_of(b));
    if (!result) overflow();
    return checked(signed_value(result->quotient, (a < 0) != (b < 0)), precision);
}

Int128 modulo(Int128 a, int a_scale, Int128 b, int b_scale, int precision, int scale) {
    if (b == 0) raise_division_by_zero();
    const Aligned both = align(a, a_scale, b, b_scale);
    return checked(rescale(both.a % both.b, both.scale, scale), precision);
}

int compare(Int128 a, int a_scale, Int128 b, int b_scale) {
    if (a_scale != b_scale) {
        const int scale = a_scale < b_scale ? b_scale : a_scale;
        Int128& finer = a_scale < b_scale ? a : b;
        const int growth = a_scale < b_scale ? scale - a_scale : scale - b_scale;
        // A value too large for the common scale is larger than everything that fits it.
        if (__builtin_mul_overflow(finer, power_of_ten(growth), &finer))
            return (a_scale < b_scale) == (a > 0) ? 1 : -1;
    }
    return (a > b) - (a < b);
}

double to_double(Int128 unscaled, int scale) {
    std::array<char, 64> digits;
    char* place = digits.data() + digits.size() - 1;
    *place = '\0';
    Magnitude rest = size_of(unscaled);
    do {
        *--place = static_cast<char>('0' + static_cast<int>(rest % 10));
        rest /= 10;
    } while (rest != 0);
    const std::string text = std::string(place) + "e-" + std::to_string(scale);
    const double value = std::strtod(text.c_str(), nullptr);
    return unscaled < 0 ? -value : value;
}

Int128 from_double(double value, int scale) {
    if (!std::isfinite(value)) overflow();
    // Seventeen digits are all that a double knows of a decimal number.
    std::array<char, 512> digits;
    const int length = std::snprintf(digits.data(), digits.size(), "%.17g", value);
    const std::string_view text(digits.data(), static_cast<std::size_t>(length));
    const auto exponent_place = std::min(text.find('e'), text.size());
    const std::string_view mantissa = text.substr(0, exponent_place);
    int exponent = 0;
    if (exponent_place < text.size()) {
        // The digits behind "e+" or "e-".
        std::from_chars(text.data() + exponent_place + 2, text.data() + text.size(), exponent);
        if (text[exponent_place + 1] == '-') exponent = -exponent;
    }
    const auto point = mantissa.find('.');
    const int decimals =
        point == std::string_view::npos ? 0 : static_cast<int>(mantissa.size() - point - 1);
    const auto parsed = parse_decimal(mantissa, decimals);
    const int from = decimals - exponent;
    if (!parsed) overflow();
    if (from >= 0) return rescale(parsed->unscaled, from, scale);
    if (-from > max_digits) overflow();
    Int128 whole = 0;
    if (__builtin_mul_overflow(parsed->unscaled, power_of_ten(-from), &whole)) overflow();
    return rescale(whole, 0, scale);
}

WideBytes to_wide(Int128 unscaled) {
    auto bits = static_cast<Magnitude>(unscaled) ^ (static_cast<Magnitude>(1) << 127);
    WideBytes bytes;
    for (std::size_t i = bytes.size(); i-- > 0; bits >>= 8)
        bytes[i] = static_cast<char>(static_cast<unsigned char>(bits & 255));
    return bytes;
}

std::optional<Int128> from_wide(std::string_view bytes) {
    if (bytes.size() != sizeof(WideBytes)) return std::nullopt;
    Magnitude bits = 0;
    for (const char byte : bytes) bits = bits << 8 | static_cast<unsigned char>(byte);
    return static_cast<Int128>(bits ^ (static_cast<Magnitude>(1) << 127));
}

} // namespace engines
