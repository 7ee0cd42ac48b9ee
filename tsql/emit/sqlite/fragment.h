// A piece of emitted SQL with what the pieces around it must know about its value.
#pragma once

#include "tsql/types/type.h"

#include <string>

namespace tsql::sqlite {

// How an exact number is held: as INTEGER or in the 16-byte form.
enum class Form : unsigned char { Narrow, Wide };

// `bound` is a magnitude the INTEGER of a narrow number never reaches; while sums of bounds stay
// below what 64 bits hold, plain + and - of SQLite are exact. It is no amount itself, only an
// estimate, and so may be floating.
struct Fragment {
    std::string text;
    Form form = Form::Narrow;
    double bound = 0;
    // The engine compares it by the database's collation without being told: a column of a table.
    bool collated = false;
    bool is_parameter = false;
};

// Magnitude below which INTEGER arithmetic cannot overflow.
inline constexpr double narrow_limit = 9.2e18;

// What a column, parameter or conversion result of this type is held as.
Form form_of(const Type& type);
double bound_of(const Type& type);
double power_of_ten(int exponent);

} // namespace tsql::sqlite
