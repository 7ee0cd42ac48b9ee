// Any type to char, varchar, nchar or nvarchar.
#include <array>
#include <cstdio>

#include "engines/calendar.h"
#include "engines/sqlite/conversion/convert.h"
#include "engines/sqlite/dates/format_datetime.h"
#include "engines/sqlite/numbers/decimal.h"
#include "engines/sqlite/raise.h"
#include "engines/sqlite/text/fit.h"
#include "engines/value_text.h"

namespace engines {
namespace {

using tsql::Type;
using tsql::TypeKind;

// Two decimals; style 1 with commas between the thousands; style 2 all four decimals.
void append_money(Int128 value, int style, std::string& out) {
    if (style == 2 || style == 126) {
        append_decimal(value, 4, out);
        return;
    }
    append_decimal(rescale(value, 4, 2), 2, out);
    if (style != 1) return;
    const std::size_t first = out.starts_with('-') ? 1 : 0;
    for (std::size_t place = out.find('.'); place > first + 3;) {
        place -= 3;
        out.insert(place, 1, ',');
    }
}

// Six significant digits and an exponent of three; styles 1 and 2 show 8 and 16 digits.
void append_float(double value, int style, std::string& out) {
    std::array<char, 64> digits;
    const char* format = style == 1 ? "%.7e" : style == 2 ? "%.15e" : style == 3 ? "%.16e" : "%.6g";
    std::snprintf(digits.data(), digits.size(), format, value);
    out = digits.data();
    const std::size_t exponent = out.find('e');
    if (exponent != std::string::npos && out.size() - exponent == 4)
        out.insert(exponent + 2, 1, '0');
}

void append_date(Int128 value, const Type& from, int style, std::string& out) {
    const bool only_date = from.kind == TypeKind::Date;
    const auto ticks = static_cast<std::int64_t>(only_date ? value * ticks_per_day : value);
    if (!append_datetime(ticks, only_date && style == 0 ? 23 : style, !only_date, out))
        raise_error(281, std::to_string(style) +
                             " is not a valid style number when converting from datetime to a "
                             "character string.");
}

void append_any(const Stored& value, const Type& from, int style, std::string& out) {
    if (value.form == Stored::Form::text || value.form == Stored::Form::bytes)
        out = value.text;
    else if (from.is_money())
        append_money(value.integer, style, out);
    else if (from.is_date())
        append_date(value.integer, from, style, out);
    else if (value.form == Stored::Form::real)
        append_float(value.real, style, out);
    else
        append_decimal(value.integer, from.stored_scale(), out);
}

// Numbers are never cut: an integer becomes a star, the others are errors.
std::string_view fit_number(std::string_view text, const Type& from, const Type& to) {
    if (cut_to_fit(text, to).size() == text.size()) return text;
    if (from.is_integer() && from.kind != TypeKind::Bit && !to.is_national()) return "*";
    raise_error(8115, "Arithmetic overflow error converting " +
                          std::string(from.is_decimal() ? "numeric" : Type::of(from.kind).text()) +
                          " to data type " + (to.is_national() ? "nvarchar." : "varchar."));
}

} // namespace

std::string_view convert_to_text(const Stored& value, const Type& from, const Type& to, int style,
                                 Fit fit, std::string& buffer) {
    std::string text;
    append_any(value, from, style, text);
    std::string_view kept = text;
    if (from.is_number())
        kept = fit_number(text, from, to);
    else if (from.kind == TypeKind::UniqueIdentifier && cut_to_fit(text, to).size() < text.size())
        raise_error(8170, "Insufficient result space to convert uniqueidentifier value to char.");
    else
        kept = fit == Fit::refuse ? refuse_unless_fit(text, to) : cut_to_fit(text, to);
    std::string result(kept);
    pad(result, to);
    // The value may be a view of the buffer, so that is changed last.
    buffer = std::move(result);
    return buffer;
}

} // namespace engines
