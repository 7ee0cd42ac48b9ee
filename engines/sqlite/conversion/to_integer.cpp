// Any type to bit, tinyint, smallint, int or bigint.
#include <cmath>
#include <limits>

#include "engines/calendar.h"
#include "engines/sqlite/conversion/convert.h"
#include "engines/sqlite/numbers/decimal.h"
#include "engines/sqlite/raise.h"
#include "engines/sqlite/text/blanks.h"
#include "engines/value_text.h"

namespace engines {
namespace {

using tsql::Type;
using tsql::TypeKind;

struct Bounds {
    Int128 low;
    Int128 high;
};

Bounds bounds_of(TypeKind kind) {
    switch (kind) {
    case TypeKind::TinyInt: return {0, 255};
    case TypeKind::SmallInt: return {-32768, 32767};
    case TypeKind::Int: return {-2147483648LL, 2147483647LL};
    default:
        return {std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()};
    }
}

std::string quoted_conversion(std::string_view text, const Type& from, const Type& to) {
    return "Conversion failed when converting the " + std::string(from.is_national() ? "n" : "") +
           "varchar value '" + std::string(text) + "' to data type " + to.text() + ".";
}

[[noreturn]] void raise_text_overflow(std::string_view text, const Type& to) {
    const std::string start =
        "The conversion of the varchar value '" + std::string(text) + "' overflowed an ";
    switch (to.kind) {
    case TypeKind::TinyInt: raise_error(244, start + "INT1 column. Use a larger integer column.");
    case TypeKind::SmallInt: raise_error(244, start + "INT2 column. Use a larger integer column.");
    case TypeKind::Int: raise_error(248, start + "int column.");
    default: raise_overflow(to.text());
    }
}

[[noreturn]] void raise_number_overflow(Int128 value, const Type& from, const Type& to) {
    const bool small = to.kind == TypeKind::TinyInt || to.kind == TypeKind::SmallInt;
    std::string digits;
    append_decimal(value, 0, digits);
    if (from.is_float())
        raise_error(232, "Arithmetic overflow error for type " + to.text() + ", value = " + digits +
                             ".000000.");
    if (small && from.is_integer())
        raise_error(220, "Arithmetic overflow error for data type " + to.text() +
                             ", value = " + digits + ".");
    raise_overflow(to.text());
}

bool equals_word(std::string_view text, std::string_view lower) {
    if (text.size() != lower.size()) return false;
    for (std::size_t i = 0; i < text.size(); ++i)
        if ((text[i] | 0x20) != lower[i]) return false;
    return true;
}

Int128 integer_from_text(std::string_view text, const Type& from, const Type& to) {
    const std::string_view digits = without_blanks(text);
    if (to.kind == TypeKind::Bit) {
        if (equals_word(digits, "true")) return 1;
        if (equals_word(digits, "false")) return 0;
    }
    std::string_view rest = digits;
    const bool negative = rest.starts_with('-');
    if (negative || rest.starts_with('+')) rest = without_leading_blanks(rest.substr(1));
    if (rest.empty() && !digits.empty()) raise_error(245, quoted_conversion(text, from, to));
    Int128 value = 0;
    const Int128 limit = power_of_ten(30);
    for (const char digit : rest) {
        if (digit < '0' || digit > '9') raise_error(245, quoted_conversion(text, from, to));
        if (value < limit) value = value * 10 + (digit - '0');
    }
    if (negative) value = -value;
    if (to.kind == TypeKind::Bit) return value != 0 ? 1 : 0;
    const Bounds bounds = bounds_of(to.kind);
    if (value < bounds.low || value > bounds.high) raise_text_overflow(text, to);
    return value;
}

Int128 integer_from_bytes(std::string_view bytes, TypeKind kind) {
    const std::size_t size = kind == TypeKind::TinyInt    ? 1
                             : kind == TypeKind::SmallInt ? 2
                             : kind == TypeKind::Int      ? 4
                                                          : 8;
    if (bytes.size() > size) bytes.remove_prefix(bytes.size() - size);
    std::uint64_t bits = 0;
    for (const char byte : bytes) bits = bits << 8 | static_cast<unsigned char>(byte);
    switch (kind) {
    case TypeKind::Bit: return bits != 0 ? 1 : 0;
    case TypeKind::TinyInt: return static_cast<std::uint8_t>(bits);
    case TypeKind::SmallInt: return static_cast<std::int16_t>(bits);
    case TypeKind::Int: return static_cast<std::int32_t>(bits);
    default: return static_cast<std::int64_t>(bits);
    }
}

Int128 integer_from_float(double value, const Type& from, const Type& to) {
    if (!(std::fabs(value) < 9.3e18)) {
        if (to.kind == TypeKind::BigInt || !std::isfinite(value)) raise_overflow(to.text());
        raise_number_overflow(value < 0 ? -power_of_ten(19) : power_of_ten(19), from, to);
    }
    return static_cast<Int128>(std::trunc(value));
}

// Rounds to the nearest whole unit, as datetime does for days.
Int128 rounded_days(Int128 ticks) {
    return (ticks + (ticks < 0 ? -ticks_per_day / 2 : ticks_per_day / 2)) / ticks_per_day;
}

} // namespace

Int128 convert_to_integer(const Stored& value, const Type& from, const Type& to) {
    if (from.is_text()) return integer_from_text(value.text, from, to);
    if (from.is_binary()) return integer_from_bytes(value.text, to.kind);
    if (to.kind == TypeKind::Bit)
        return from.is_float() && value.form == Stored::Form::real ? value.real != 0
                                                                   : value.integer != 0;
    Int128 whole = value.integer;
    if (from.is_float() && value.form == Stored::Form::real)
        whole = integer_from_float(value.real, from, to);
    else if (from.is_money())
        whole = rescale(whole, 4, 0);
    else if (from.is_decimal())
        whole = rescale(whole, from.scale, 0, Rounding::cut);
    else if (from.is_date() && from.kind != TypeKind::Date)
        whole = rounded_days(whole);
    const Bounds bounds = bounds_of(to.kind);
    if (whole < bounds.low || whole > bounds.high) raise_number_overflow(whole, from, to);
    return whole;
}

} // namespace engines
