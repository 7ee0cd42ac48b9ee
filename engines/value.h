// One cell of a result: a typed value that owns nothing.
#pragma once

#include <cstdint>
#include <string_view>

namespace engines {

// Wide enough for decimal(38,s): 38 digits are below 2^127.
__extension__ typedef __int128 Int128;

// What a value is; the T-SQL types that read alike share a kind.
enum class ValueKind : std::uint8_t {
    null,
    bit,           // integer 0 or 1
    integer,       // tinyint, smallint, int, bigint
    decimal,       // decimal, numeric; money and smallmoney are decimals of scale 4
    real,          // float and real: never an amount of money
    text,          // char, varchar, nchar, nvarchar, text, ntext, xml: UTF-8
    datetime,      // datetime: 1/300 seconds since 1900-01-01 00:00; dates before it are negative
    smalldatetime, // the same count, shown to the minute
    date,          // days since 1900-01-01
    time,          // 100 nanoseconds since midnight
    guid,          // uniqueidentifier, upper case with hyphens
    binary         // bytes
};

// A cell. Texts and bytes are views that live as long as the callback that shows them.
//
// Example: decimal(18,2) 12.50 is {kind decimal, scale 2, unscaled 1250}.
class Value {
public:
    Value() : integer_(0) {}
    static Value null() { return Value(); }
    static Value bit(bool value) { return Value(ValueKind::bit, value ? 1 : 0); }
    static Value integer(std::int64_t value) { return Value(ValueKind::integer, value); }
    static Value decimal(Int128 unscaled, int scale) {
        Value value;
        value.kind_ = ValueKind::decimal;
        value.scale_ = static_cast<std::uint8_t>(scale);
        value.unscaled_ = unscaled;
        return value;
    }
    static Value real(double number) {
        Value value;
        value.kind_ = ValueKind::real;
        value.real_ = number;
        return value;
    }
    static Value text(std::string_view characters) { return Value(ValueKind::text, characters); }
    static Value guid(std::string_view characters) { return Value(ValueKind::guid, characters); }
    static Value binary(std::string_view bytes) { return Value(ValueKind::binary, bytes); }
    static Value datetime(std::int64_t ticks) { return Value(ValueKind::datetime, ticks); }
    static Value smalldatetime(std::int64_t ticks) {
        return Value(ValueKind::smalldatetime, ticks);
    }
    static Value date(std::int64_t days) { return Value(ValueKind::date, days); }
    static Value time(std::int64_t units) { return Value(ValueKind::time, units); }

    ValueKind kind() const { return kind_; }
    bool is_null() const { return kind_ == ValueKind::null; }
    // Of bit, integer, datetime, smalldatetime, date, time.
    std::int64_t as_integer() const { return integer_; }
    // Of decimal: the value times ten to the power of scale().
    Int128 unscaled() const { return unscaled_; }
    int scale() const { return scale_; }
    // Of real.
    double as_real() const { return real_; }
    // Of text, guid, binary.
    std::string_view as_text() const { return text_; }

private:
    Value(ValueKind kind, std::int64_t value) : kind_(kind), integer_(value) {}
    Value(ValueKind kind, std::string_view value) : kind_(kind), text_(value) {}

    ValueKind kind_ = ValueKind::null;
    std::uint8_t scale_ = 0;
    union {
        std::int64_t integer_;
        Int128 unscaled_;
        double real_;
        std::string_view text_;
    };
};

} // namespace engines
