// Any type to binary, varbinary or uniqueidentifier.
#include "engines/sqlite/conversion/convert.h"
#include "engines/sqlite/numbers/decimal.h"
#include "engines/sqlite/raise.h"
#include "engines/sqlite/text/blanks.h"

namespace engines {
namespace {

using tsql::Type;
using tsql::TypeKind;

std::size_t bytes_in(TypeKind kind) {
    switch (kind) {
    case TypeKind::Bit:
    case TypeKind::TinyInt: return 1;
    case TypeKind::SmallInt: return 2;
    case TypeKind::Int: return 4;
    case TypeKind::Decimal: return 16;
    default: return 8;
    }
}

// Most significant byte first.
std::string bytes_of(Int128 value, std::size_t size) {
    std::string bytes(size, '\0');
    for (std::size_t i = size; i-- > 0; value >>= 8)
        bytes[i] = static_cast<char>(static_cast<unsigned char>(value & 255));
    return bytes;
}

bool is_guid(std::string_view text) {
    if (text.size() != 36) return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const bool hyphen = i == 8 || i == 13 || i == 18 || i == 23;
        const bool digit = (c >= '0' && c <= '9') || ((c | 0x20) >= 'a' && (c | 0x20) <= 'f');
        if (hyphen ? c != '-' : !digit) return false;
    }
    return true;
}

} // namespace

std::string_view convert_to_bytes(const Stored& value, const Type& from, const Type& to, Fit fit,
                                  std::string& buffer) {
    std::string bytes;
    const bool number = value.form == Stored::Form::integer;
    if (number)
        bytes = bytes_of(value.integer, bytes_in(from.kind));
    else if (value.form == Stored::Form::real)
        raise_error(8114, "Error converting data type float to varbinary.");
    else
        bytes = value.text;
    if (to.length != Type::max_length) {
        const auto length = static_cast<std::size_t>(to.length);
        if (bytes.size() > length) {
            if (fit == Fit::refuse && !number)
                raise_error(8152, "String or binary data would be truncated.");
            // Of a number the lowest bytes count.
            bytes = number ? bytes.substr(bytes.size() - length) : bytes.substr(0, length);
        } else if (to.kind == TypeKind::Binary) {
            if (number)
                bytes.insert(0, length - bytes.size(), '\0');
            else
                bytes.append(length - bytes.size(), '\0');
        }
    }
    buffer = std::move(bytes);
    return buffer;
}

std::string_view convert_to_guid(const Stored& value, const Type& from, std::string& buffer) {
    std::string_view text = without_blanks(value.text);
    if (text.starts_with('{') && text.ends_with('}')) text = text.substr(1, text.size() - 2);
    if (!from.is_text() || !is_guid(text))
        raise_error(8169, "Conversion failed when converting from a character string to "
                          "uniqueidentifier.");
    std::string upper(text);
    for (char& c : upper)
        if (c >= 'a' && c <= 'f') c = static_cast<char>(c - 32);
    buffer = std::move(upper);
    return buffer;
}

} // namespace engines
