// Types and units: ten-thousandths, milliseconds since 1970.
#include "app/data/cell_conversion.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <string_view>

#include "engines/value_text.h"
#include "host/values/errors.h"

namespace app {

namespace {

using engines::Int128;
using engines::ValueKind;

constexpr int amount_decimals = 4;
// 1900-01-01, where engines begin to count, lies this many days before 1970-01-01.
constexpr std::int64_t days_from_1900_to_1970 = 25567;
constexpr std::int64_t milliseconds_a_day = 86'400'000;

[[noreturn]] void out_of_range() {
    throw host::DataError("数字太大,超出了可以显示的范围,请核对数据!", "value outside an amount");
}

std::int64_t narrowed(Int128 value) {
    if (value > std::numeric_limits<std::int64_t>::max() ||
        value < std::numeric_limits<std::int64_t>::min())
        out_of_range();
    return static_cast<std::int64_t>(value);
}

// Any scale to ten-thousandths; digits beyond are rounded half away from zero.
std::int64_t ten_thousandths(Int128 unscaled, int scale) {
    if (scale <= amount_decimals) {
        static constexpr std::int64_t factors[amount_decimals + 1] = {10'000, 1'000, 100, 10, 1};
        std::int64_t value = 0;
        if (__builtin_mul_overflow(narrowed(unscaled), factors[scale], &value)) out_of_range();
        return value;
    }
    Int128 divisor = 1;
    for (; scale > amount_decimals; --scale) divisor *= 10;
    Int128 quotient = unscaled / divisor;
    const Int128 rest = unscaled % divisor;
    const Int128 magnitude = rest < 0 ? -rest : rest;
    if (magnitude >= divisor - magnitude) quotient += unscaled < 0 ? -1 : 1;
    return narrowed(quotient);
}

// Digits behind the fourth decimal that are not all zero.
bool finer_than_an_amount(Int128 unscaled, int scale) {
    Int128 divisor = 1;
    for (; scale > amount_decimals; --scale) divisor *= 10;
    return unscaled % divisor != 0;
}

// The fifteen digits that a floating-point number is good for, without an exponent: 0.1 and not
// 0.1000000000000000056.
void write_plain_real(double value, std::string& out) {
    constexpr int good_digits = 15, most_decimals = 30;
    const int whole_digits =
        value == 0 ? 1 : static_cast<int>(std::floor(std::log10(std::abs(value)))) + 1;
    const int decimals = std::clamp(good_digits - whole_digits, 0, most_decimals);
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
    out = text.data();
}

// "0.25" of "0.2500", "7" of "7.000".
std::string_view without_idle_zeros(std::string_view digits) {
    if (digits.find('.') == std::string_view::npos) return digits;
    while (digits.back() == '0') digits.remove_suffix(1);
    if (digits.back() == '.') digits.remove_suffix(1);
    return digits;
}

// No column of the books is a floating-point number; an expression that somebody types may be.
std::int64_t ten_thousandths_of_real(double value) {
    const double scaled = std::round(value * 10'000);
    if (!(std::abs(scaled) < 9.2e18)) out_of_range();
    return static_cast<std::int64_t>(scaled);
}

// Ticks of 1/300 second, as milliseconds the way they are written: .000, .003, .007.
std::int64_t milliseconds_of(std::int64_t ticks) {
    const std::int64_t tenfold = ticks * 10;
    const std::int64_t floor = tenfold / 3 - (tenfold % 3 < 0 ? 1 : 0);
    const std::int64_t rest = tenfold - floor * 3;
    return floor + (rest == 2 ? 1 : 0) - days_from_1900_to_1970 * milliseconds_a_day;
}

host::FieldType type_of(ValueKind kind) {
    switch (kind) {
        case ValueKind::bit: return host::FieldType::Boolean;
        case ValueKind::integer: return host::FieldType::Integer;
        case ValueKind::decimal:
        case ValueKind::real: return host::FieldType::Amount;
        case ValueKind::datetime:
        case ValueKind::smalldatetime:
        case ValueKind::date: return host::FieldType::DateTime;
        default: return host::FieldType::Text;
    }
}

} // namespace

host::ColumnDescription description_of(const engines::Column& column) {
    host::ColumnDescription description;
    description.name = column.name;
    description.type = type_of(column.kind);
    if (column.kind == ValueKind::text && column.length > 0) description.size = column.length;
    if (column.kind == ValueKind::decimal)
        description.decimals = std::min(column.scale, amount_decimals);
    if (column.kind == ValueKind::real) description.decimals = amount_decimals;
    return description;
}

host::CellView view_of(const engines::Value& value, std::string& storage) {
    host::CellView view;
    if (value.is_null()) return view;
    view.null = false;
    switch (value.kind()) {
        case ValueKind::bit:
        case ValueKind::integer: view.integer = value.as_integer(); break;
        case ValueKind::decimal:
            view.integer = ten_thousandths(value.unscaled(), value.scale());
            if (!finer_than_an_amount(value.unscaled(), value.scale())) break;
            storage.clear();
            engines::append_text(value, storage);
            view.text = without_idle_zeros(storage);
            break;
        case ValueKind::real:
            view.integer = ten_thousandths_of_real(value.as_real());
            write_plain_real(value.as_real(), storage);
            view.text = without_idle_zeros(storage);
            break;
        case ValueKind::datetime:
        case ValueKind::smalldatetime: view.integer = milliseconds_of(value.as_integer()); break;
        case ValueKind::date:
            view.integer = (value.as_integer() - days_from_1900_to_1970) * milliseconds_a_day;
            break;
        case ValueKind::text: view.text = value.as_text(); break;
        default:
            storage.clear();
            engines::append_text(value, storage);
            view.text = storage;
    }
    return view;
}

} // namespace app
