// The types of T-SQL: kind, precision, scale, length; and which type an operation gives.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tsql {

// Ordered by precedence: where two kinds meet in one operation the later one wins, and the other
// operand is converted to it. `Null` is the type of a bare NULL and loses against everything.
enum class TypeKind : std::uint8_t {
    Null,
    Binary,
    VarBinary,
    Char,
    VarChar,
    NChar,
    NVarChar,
    UniqueIdentifier,
    Bit,
    TinyInt,
    SmallInt,
    Int,
    BigInt,
    SmallMoney,
    Money,
    Decimal,
    Real,
    Float,
    Date,
    SmallDateTime,
    DateTime,
};

// One type. Values are what an engine stores:
//   integers as they are; bit 0 or 1; decimal as value * 10^scale; money and smallmoney as
//   value * 10^4; datetime and smalldatetime in 1/300 seconds since 1900-01-01 00:00; date in days
//   since 1900-01-01; texts in UTF-8; uniqueidentifier as upper-case text with hyphens.
//
//     Type::decimal(18, 2)   decimal(18,2)
//     Type::varchar(10)      varchar(10): ten bytes of the code page, five Chinese characters
struct Type {
    static constexpr int max_length = -1; // varchar(max), nvarchar(max), varbinary(max)

    TypeKind kind = TypeKind::Null;
    std::uint8_t precision = 0; // of Decimal: digits in all, 1 to 38
    std::uint8_t scale = 0;     // of Decimal: digits after the point
    std::int16_t length = 0;    // of texts and binaries; -1 for (max)

    static Type of(TypeKind kind) { return {kind, 0, 0, 0}; }
    static Type integer() { return of(TypeKind::Int); }
    static Type decimal(int precision, int scale);
    static Type varchar(int length);
    static Type nvarchar(int length);

    bool is_null() const { return kind == TypeKind::Null; }
    bool is_text() const { return kind >= TypeKind::Char && kind <= TypeKind::NVarChar; }
    bool is_national() const { return kind == TypeKind::NChar || kind == TypeKind::NVarChar; }
    bool is_binary() const { return kind == TypeKind::Binary || kind == TypeKind::VarBinary; }
    bool is_integer() const { return kind >= TypeKind::Bit && kind <= TypeKind::BigInt; }
    bool is_money() const { return kind == TypeKind::Money || kind == TypeKind::SmallMoney; }
    bool is_decimal() const { return kind == TypeKind::Decimal; }
    bool is_exact() const { return is_integer() || is_money() || is_decimal(); }
    bool is_float() const { return kind == TypeKind::Float || kind == TypeKind::Real; }
    bool is_number() const { return is_exact() || is_float(); }
    bool is_date() const { return kind >= TypeKind::Date; }
    // Digits after the point of a stored value: 4 for money, `scale` for decimal, else 0.
    int stored_scale() const { return is_money() ? 4 : is_decimal() ? scale : 0; }

    // One number that holds the whole type; emitted texts hand it to the conversion functions.
    std::int64_t packed() const;
    static Type unpack(std::int64_t packed);

    // "decimal(18,2)", "varchar(max)", "int".
    std::string text() const;

    friend bool operator==(const Type&, const Type&) = default;
};

// The type of a name as written in a declaration, without its parentheses; nothing for a name
// that is no type or one this system does not have (time, xml, geography). Understands the
// synonyms integer, numeric, dec, double precision, character varying, sysname, text, ntext.
std::optional<TypeKind> type_kind_named(std::string_view name);

// The common type of two operands of a comparison, of CASE branches, of UNION columns: the kind of
// higher precedence, for decimals with the digits of both, for texts with the longer length.
Type common_type(const Type& left, const Type& right);

// An exact number seen as decimal: int is decimal(10,0), money decimal(19,4), bit decimal(1,0).
Type as_decimal(const Type& type);

enum class ArithmeticKind : std::uint8_t { Add, Subtract, Multiply, Divide, Modulo };

// Precision and scale of an operation between two decimals, by the server's rules; never more than
// 38 digits, the scale giving way down to 6.
Type decimal_result(ArithmeticKind operation, const Type& left, const Type& right);

} // namespace tsql
