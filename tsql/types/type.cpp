// Result types of operations, as the server's documents give them.
#include "tsql/types/type.h"

#include <algorithm>
#include <array>

namespace tsql {

namespace {

constexpr int max_precision = 38;

struct NamedKind {
    std::string_view name;
    TypeKind kind;
};

// The first name of a kind is the one it is shown by.
constexpr std::array<NamedKind, 38> names{{
    {"binary", TypeKind::Binary},
    {"varbinary", TypeKind::VarBinary},
    {"image", TypeKind::VarBinary},
    {"char", TypeKind::Char},
    {"character", TypeKind::Char},
    {"varchar", TypeKind::VarChar},
    {"character varying", TypeKind::VarChar},
    {"char varying", TypeKind::VarChar},
    {"text", TypeKind::VarChar},
    {"nchar", TypeKind::NChar},
    {"national character", TypeKind::NChar},
    {"national char", TypeKind::NChar},
    {"nvarchar", TypeKind::NVarChar},
    {"national character varying", TypeKind::NVarChar},
    {"national char varying", TypeKind::NVarChar},
    {"ntext", TypeKind::NVarChar},
    {"sysname", TypeKind::NVarChar},
    {"uniqueidentifier", TypeKind::UniqueIdentifier},
    {"bit", TypeKind::Bit},
    {"tinyint", TypeKind::TinyInt},
    {"smallint", TypeKind::SmallInt},
    {"int", TypeKind::Int},
    {"integer", TypeKind::Int},
    {"bigint", TypeKind::BigInt},
    {"smallmoney", TypeKind::SmallMoney},
    {"money", TypeKind::Money},
    {"decimal", TypeKind::Decimal},
    {"numeric", TypeKind::Decimal},
    {"dec", TypeKind::Decimal},
    {"real", TypeKind::Real},
    {"float", TypeKind::Float},
    {"double precision", TypeKind::Float},
    {"date", TypeKind::Date},
    {"smalldatetime", TypeKind::SmallDateTime},
    {"datetime", TypeKind::DateTime},
    {"null", TypeKind::Null},
    {"rowversion", TypeKind::Binary},
    {"timestamp", TypeKind::Binary},
}};

bool equal_without_case(std::string_view left, std::string_view lower) {
    return left.size() == lower.size() &&
           std::equal(left.begin(), left.end(), lower.begin(), [](char a, char b) {
               return (a >= 'A' && a <= 'Z' ? static_cast<char>(a + 32) : a) == b;
           });
}

Type longer(const Type& left, const Type& right, TypeKind kind) {
    Type result{kind, 0, 0, 0};
    const bool unbounded = left.length == Type::max_length || right.length == Type::max_length;
    result.length =
        unbounded ? std::int16_t{Type::max_length} : std::max(left.length, right.length);
    return result;
}

} // namespace

Type Type::decimal(int precision, int scale) {
    return {TypeKind::Decimal, static_cast<std::uint8_t>(precision),
            static_cast<std::uint8_t>(scale), 0};
}

Type Type::varchar(int length) {
    return {TypeKind::VarChar, 0, 0, static_cast<std::int16_t>(length)};
}

Type Type::nvarchar(int length) {
    return {TypeKind::NVarChar, 0, 0, static_cast<std::int16_t>(length)};
}

std::int64_t Type::packed() const {
    return static_cast<std::int64_t>(kind) | static_cast<std::int64_t>(precision) << 8 |
           static_cast<std::int64_t>(scale) << 16 |
           static_cast<std::int64_t>(static_cast<std::uint16_t>(length)) << 24;
}

Type Type::unpack(std::int64_t packed) {
    return {static_cast<TypeKind>(packed & 0xff), static_cast<std::uint8_t>(packed >> 8 & 0xff),
            static_cast<std::uint8_t>(packed >> 16 & 0xff),
            static_cast<std::int16_t>(static_cast<std::uint16_t>(packed >> 24 & 0xffff))};
}

std::string Type::text() const {
    std::string result;
    for (const NamedKind& named : names) {
        if (named.kind == kind) {
            result = named.name;
            break;
        }
    }
    if (is_decimal()) {
        result += '(' + std::to_string(precision) + ',' + std::to_string(scale) + ')';
    } else if (is_text() || is_binary()) {
        result += length == max_length ? "(max)" : '(' + std::to_string(length) + ')';
    }
    return result;
}

std::optional<TypeKind> type_kind_named(std::string_view name) {
    for (const NamedKind& named : names) {
        if (equal_without_case(name, named.name)) {
            return named.kind == TypeKind::Null ? std::nullopt : std::optional(named.kind);
        }
    }
    return std::nullopt;
}

Type as_decimal(const Type& type) {
    switch (type.kind) {
    case TypeKind::Decimal: return type;
    case TypeKind::Bit: return Type::decimal(1, 0);
    case TypeKind::TinyInt: return Type::decimal(3, 0);
    case TypeKind::SmallInt: return Type::decimal(5, 0);
    case TypeKind::BigInt: return Type::decimal(19, 0);
    case TypeKind::SmallMoney: return Type::decimal(10, 4);
    case TypeKind::Money: return Type::decimal(19, 4);
    default: return Type::decimal(10, 0);
    }
}

Type common_type(const Type& left, const Type& right) {
    if (left.kind == right.kind && !left.is_decimal() && !left.is_text() && !left.is_binary()) {
        return left;
    }
    const Type& high = left.kind >= right.kind ? left : right;
    const Type& low = left.kind >= right.kind ? right : left;
    if (low.is_null()) {
        return high;
    }
    if (high.is_text() && low.is_text()) {
        return longer(left, right, high.kind);
    }
    if (high.is_binary() && low.is_binary()) {
        return longer(left, right, high.kind);
    }
    if (!high.is_decimal() || !low.is_exact()) {
        return high;
    }
    const Type other = as_decimal(low);
    const int whole = std::max(high.precision - high.scale, other.precision - other.scale);
    const int scale = std::min(std::max<int>(high.scale, other.scale), max_precision - whole);
    return Type::decimal(whole + scale, scale);
}

Type decimal_result(ArithmeticKind operation, const Type& left, const Type& right) {
    const int p1 = left.precision;
    const int s1 = left.scale;
    const int p2 = right.precision;
    const int s2 = right.scale;
    int scale = std::max(s1, s2);
    int precision = 0;
    switch (operation) {
    case ArithmeticKind::Add:
    case ArithmeticKind::Subtract: {
        const int whole = std::max(p1 - s1, p2 - s2);
        precision = whole + scale + 1;
        if (precision > max_precision) {
            scale = std::min(scale, max_precision - whole);
        }
        return Type::decimal(std::min(precision, max_precision), scale);
    }
    case ArithmeticKind::Modulo:
        return Type::decimal(std::max(1, std::min(p1 - s1, p2 - s2) + scale), scale);
    case ArithmeticKind::Multiply:
        scale = s1 + s2;
        precision = p1 + p2 + 1;
        break;
    case ArithmeticKind::Divide:
        scale = std::max(6, s1 + p2 + 1);
        precision = p1 - s1 + s2 + scale;
        break;
    }
    const int whole = precision - scale;
    if (precision > max_precision) {
        scale = whole < 32 ? std::min(scale, max_precision - whole) : std::min(scale, 6);
    }
    return Type::decimal(std::min(precision, max_precision), scale);
}

} // namespace tsql
