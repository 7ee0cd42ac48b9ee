// A value as SQLite keeps it, on its way from one type to another.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "engines/value.h"
#include "tsql/types/type.h"

namespace engines {

// What it means follows from its T-SQL type (tsql/types/type.h): a decimal is its unscaled number
// whatever its form on file. Texts and bytes are views.
struct Stored {
    enum class Form : std::uint8_t { null, integer, real, text, bytes };

    Form form = Form::null;
    Int128 integer = 0;
    double real = 0;
    std::string_view text;

    static Stored null() { return {}; }
    static Stored of(Int128 value) { return {Form::integer, value}; }
    static Stored of_real(double value) { return {Form::real, 0, value}; }
    static Stored of_text(std::string_view value) { return {Form::text, 0, 0, value}; }
    static Stored of_bytes(std::string_view value) { return {Form::bytes, 0, 0, value}; }
    bool is_null() const { return form == Form::null; }
};

// Whether values of the type are kept as 16 bytes rather than as an integer: decimals of more than
// 18 digits.
inline bool is_wide(const tsql::Type& type) {
    return type.kind == tsql::TypeKind::Decimal && type.precision > 18;
}

// The cell that a receiver sees for a stored value of the type.
Value cell_of(const Stored& stored, const tsql::Type& type);

} // namespace engines
