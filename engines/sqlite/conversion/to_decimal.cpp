// Any type to decimal, money or smallmoney.
#include "engines/calendar.h"
#include "engines/sqlite/conversion/convert.h"
#include "engines/sqlite/numbers/decimal.h"
#include "engines/sqlite/raise.h"
#include "engines/sqlite/text/blanks.h"
#include "engines/sqlite/text/utf8.h"

namespace engines {
namespace {

using tsql::Type;
using tsql::TypeKind;

Int128 decimal_from_text(std::string_view text, const Type& from, const Type& to) {
    const auto parsed = parse_decimal(text, to.scale);
    const std::string source = from.is_national() ? "nvarchar" : "varchar";
    if (!parsed) raise_error(8114, "Error converting data type " + source + " to numeric.");
    if (parsed->overflow || compare(parsed->unscaled, 0, power_of_ten(to.precision), 0) >= 0 ||
        compare(parsed->unscaled, 0, -power_of_ten(to.precision), 0) <= 0)
        raise_error(8115,
                    "Arithmetic overflow error converting " + source + " to data type numeric.");
    return parsed->unscaled;
}

Int128 money_in_range(Int128 value, const Type& to) {
    const Int128 limit = to.kind == TypeKind::SmallMoney ? Int128(1) << 31 : Int128(1) << 63;
    if (value >= limit || value < -limit) raise_overflow(to.text());
    return value;
}

// Days since 1900 with their fraction.
Int128 days_of(Int128 ticks, int scale) {
    return divide(ticks, 0, ticks_per_day, 0, 38, scale);
}

} // namespace

Int128 money_from_text(std::string_view text) {
    std::string digits;
    const std::string_view trimmed = without_blanks(text);
    bool currency = false;
    for (std::size_t place = 0; place < trimmed.size();) {
        const char32_t character = next_character(trimmed, place);
        if (character == ',') continue;
        const bool sign = character == U'$' || character == U'¥' || character == U'￥' ||
                          character == U'€' || character == U'£';
        if (sign && !currency)
            currency = true;
        else
            append_character(character, digits);
    }
    if (digits.empty()) return 0;
    const auto parsed = parse_decimal(digits, 4);
    if (!parsed)
        raise_error(235, "Cannot convert a char value to money. The char value has incorrect "
                         "syntax.");
    if (parsed->overflow) raise_overflow("money");
    return parsed->unscaled;
}

Int128 convert_to_decimal(const Stored& value, const Type& from, const Type& to) {
    const int scale = to.stored_scale();
    Int128 result = value.integer;
    if (from.is_text()) {
        if (to.is_decimal()) return decimal_from_text(value.text, from, to);
        result = money_from_text(value.text);
    } else if (from.is_float() && value.form == Stored::Form::real) {
        result = from_double(value.real, scale);
    } else if (from.is_binary()) {
        raise_error(8114, "Error converting data type varbinary to numeric.");
    } else if (from.is_date()) {
        result = days_of(result, scale);
    } else {
        result = rescale(result, from.stored_scale(), scale);
    }
    return to.is_money() ? money_in_range(result, to) : checked(result, to.precision);
}

} // namespace engines
