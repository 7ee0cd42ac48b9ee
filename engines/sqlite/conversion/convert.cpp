// Chooses the conversion by the family of the target.
#include "engines/sqlite/conversion/convert.h"

#include "engines/sqlite/raise.h"
#include "engines/sqlite/text/fit.h"

namespace engines {
namespace {

using tsql::Type;
using tsql::TypeKind;

// Texts that already fit are the most frequent case and go through without a copy.
bool passes(std::string_view text, const Type& from, const Type& to) {
    if (!from.is_text() || to.kind == TypeKind::Char || to.kind == TypeKind::NChar) return false;
    return to.length == Type::max_length || text.size() <= static_cast<std::size_t>(to.length);
}

} // namespace

Stored convert(const Stored& value, const Type& from, const Type& to, int style, Fit fit,
               std::string& buffer) {
    if (value.is_null() || to.is_null()) return value;
    if (from.is_null()) return value;
    if (from == to && !to.is_text() && !to.is_binary()) return value;
    if (to.is_text()) {
        if (value.form == Stored::Form::text && passes(value.text, from, to)) return value;
        return Stored::of_text(convert_to_text(value, from, to, style, fit, buffer));
    }
    switch (to.kind) {
    case TypeKind::Bit:
    case TypeKind::TinyInt:
    case TypeKind::SmallInt:
    case TypeKind::Int:
    case TypeKind::BigInt: return Stored::of(convert_to_integer(value, from, to));
    case TypeKind::SmallMoney:
    case TypeKind::Money:
    case TypeKind::Decimal: return Stored::of(convert_to_decimal(value, from, to));
    case TypeKind::Real:
    case TypeKind::Float: return Stored::of_real(convert_to_float(value, from, to));
    case TypeKind::Date:
    case TypeKind::SmallDateTime:
    case TypeKind::DateTime: return Stored::of(convert_to_date(value, from, to, style));
    case TypeKind::UniqueIdentifier: return Stored::of_text(convert_to_guid(value, from, buffer));
    default: return Stored::of_bytes(convert_to_bytes(value, from, to, fit, buffer));
    }
}

} // namespace engines
