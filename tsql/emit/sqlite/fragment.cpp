// Bounds and forms of stored values by their types.
#include "tsql/emit/sqlite/fragment.h"

namespace tsql::sqlite {

double power_of_ten(int exponent) {
    double power = 1;
    for (; exponent > 0; --exponent) {
        power *= 10;
    }
    return power;
}

Form form_of(const Type& type) {
    return type.is_decimal() && type.precision > 18 ? Form::Wide : Form::Narrow;
}

double bound_of(const Type& type) {
    switch (type.kind) {
    case TypeKind::Bit: return 2;
    case TypeKind::TinyInt: return 256;
    case TypeKind::SmallInt: return 32769;
    case TypeKind::Int: return 2147483649.0;
    case TypeKind::SmallMoney: return 2147483649.0;
    case TypeKind::Decimal: return power_of_ten(type.precision);
    case TypeKind::Date: return 4000000;
    case TypeKind::DateTime:
    case TypeKind::SmallDateTime: return 4000000.0 * 25920000.0;
    default: return 9.3e18;
    }
}

} // namespace tsql::sqlite
