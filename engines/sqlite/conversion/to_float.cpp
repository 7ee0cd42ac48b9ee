// Any type to float or real, and what counts as numeric.
#include <cmath>
#include <cstdlib>

#include "engines/calendar.h"
#include "engines/sqlite/conversion/convert.h"
#include "engines/sqlite/numbers/decimal.h"
#include "engines/sqlite/raise.h"
#include "engines/sqlite/text/blanks.h"

namespace engines {

using tsql::Type;
using tsql::TypeKind;

// The standard library would also read hexadecimal, "inf" and "nan", so the form is checked first.
bool parse_float(std::string_view text, double& value) {
    const std::string copy(without_blanks(text));
    value = 0;
    if (copy.empty()) return true;
    std::size_t place = copy[0] == '-' || copy[0] == '+' ? 1 : 0;
    const auto digits = [&] {
        const std::size_t start = place;
        while (place < copy.size() && copy[place] >= '0' && copy[place] <= '9') ++place;
        return place - start;
    };
    std::size_t count = digits();
    if (place < copy.size() && copy[place] == '.') {
        ++place;
        count += digits();
    }
    if (count == 0) return false;
    if (place < copy.size() && (copy[place] | 0x20) == 'e') {
        ++place;
        if (place < copy.size() && (copy[place] == '-' || copy[place] == '+')) ++place;
        if (digits() == 0) return false;
    }
    if (place != copy.size()) return false;
    value = std::strtod(copy.c_str(), nullptr);
    return true;
}

double convert_to_float(const Stored& value, const Type& from, const Type& to) {
    double result = 0;
    if (from.is_text()) {
        if (!parse_float(value.text, result))
            raise_error(8114, std::string("Error converting data type ") +
                                  (from.is_national() ? "n" : "") + "varchar to float.");
    } else if (value.form == Stored::Form::real) {
        result = value.real;
    } else if (from.is_date() && from.kind != TypeKind::Date) {
        result = static_cast<double>(value.integer) / static_cast<double>(ticks_per_day);
    } else {
        result = to_double(value.integer, from.stored_scale());
    }
    if (to.kind == TypeKind::Real) result = static_cast<double>(static_cast<float>(result));
    if (!std::isfinite(result)) raise_overflow(to.text());
    return result;
}

bool is_numeric(std::string_view text) {
    const std::string_view trimmed = without_blanks(text);
    if (trimmed.empty()) return false;
    double value = 0;
    if (parse_float(trimmed, value)) return true;
    try {
        money_from_text(trimmed);
        return true;
    } catch (const Failure&) {
        return false;
    }
}

} // namespace engines
