// Stored values as cells of a result.
#include "engines/sqlite/conversion/stored.h"

namespace engines {

Value cell_of(const Stored& stored, const tsql::Type& type) {
    using tsql::TypeKind;
    if (stored.is_null()) return Value::null();
    switch (type.kind) {
    case TypeKind::Bit: return Value::bit(stored.integer != 0);
    case TypeKind::TinyInt:
    case TypeKind::SmallInt:
    case TypeKind::Int:
    case TypeKind::BigInt: return Value::integer(static_cast<std::int64_t>(stored.integer));
    case TypeKind::SmallMoney:
    case TypeKind::Money:
    case TypeKind::Decimal: return Value::decimal(stored.integer, type.stored_scale());
    case TypeKind::Real:
    case TypeKind::Float:
        return Value::real(stored.form == Stored::Form::real ? stored.real
                                                             : static_cast<double>(stored.integer));
    case TypeKind::Date: return Value::date(static_cast<std::int64_t>(stored.integer));
    case TypeKind::SmallDateTime:
        return Value::smalldatetime(static_cast<std::int64_t>(stored.integer));
    case TypeKind::DateTime: return Value::datetime(static_cast<std::int64_t>(stored.integer));
    case TypeKind::UniqueIdentifier: return Value::guid(stored.text);
    case TypeKind::Binary:
    case TypeKind::VarBinary: return Value::binary(stored.text);
    default: break;
    }
    // A bare NULL has no type; whatever comes under it is shown as it is.
    if (stored.form == Stored::Form::integer)
        return Value::integer(static_cast<std::int64_t>(stored.integer));
    if (stored.form == Stored::Form::real) return Value::real(stored.real);
    return Value::text(stored.text);
}

} // namespace engines
