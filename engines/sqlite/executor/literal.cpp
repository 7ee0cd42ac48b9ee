// Reads the digits of literals; the parser has made sure that they are digits.
#include "engines/sqlite/executor/literal.h"

#include <cstdlib>

#include "engines/sqlite/conversion/convert.h"
#include "engines/sqlite/numbers/decimal.h"
#include "engines/sqlite/raise.h"

namespace engines {
namespace {

int hexadecimal(char digit) {
    if (digit <= '9') return digit - '0';
    return (digit | 0x20) - 'a' + 10;
}

std::string_view bytes_of(std::string_view digits, std::string& buffer) {
    buffer.clear();
    std::size_t place = 0;
    if (digits.size() % 2 == 1) buffer += static_cast<char>(hexadecimal(digits[place++]));
    for (; place + 1 < digits.size(); place += 2)
        buffer +=
            static_cast<char>(hexadecimal(digits[place]) << 4 | hexadecimal(digits[place + 1]));
    return buffer;
}

Stored exact_value(std::string_view digits, const tsql::Type& type) {
    const auto parsed = parse_decimal(digits, type.stored_scale());
    if (!parsed || parsed->overflow) raise_overflow(type.text());
    return Stored::of(parsed->unscaled);
}

} // namespace

Stored literal_value(const tsql::LiteralValue& literal, const tsql::Type& type,
                     std::string& buffer) {
    using tsql::LiteralKind;
    switch (literal.kind) {
    case LiteralKind::Null: return Stored::null();
    case LiteralKind::Text:
    case LiteralKind::NationalText: return Stored::of_text(literal.text);
    case LiteralKind::Binary: return Stored::of_bytes(bytes_of(literal.text, buffer));
    case LiteralKind::Float: return Stored::of_real(std::strtod(literal.text.c_str(), nullptr));
    case LiteralKind::Money: return Stored::of(money_from_text(literal.text));
    case LiteralKind::Integer:
    case LiteralKind::Decimal: break;
    }
    if (type.is_float()) return Stored::of_real(std::strtod(literal.text.c_str(), nullptr));
    return exact_value(literal.text, type);
}

} // namespace engines
