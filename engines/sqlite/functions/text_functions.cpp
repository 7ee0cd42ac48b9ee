// Text functions: cutting, measuring, single characters.
#include <algorithm>
#include <array>
#include <cstdio>

#include "engines/sqlite/functions/families.h"
#include "engines/sqlite/text/blanks.h"
#include "engines/sqlite/text/edit.h"
#include "engines/sqlite/text/fit.h"
#include "engines/sqlite/text/format.h"
#include "engines/sqlite/text/letter_case.h"
#include "engines/sqlite/text/utf8.h"

namespace engines {
namespace {

using tsql::TypeKind;

void give_optional(const Call& call, const std::optional<std::string>& text) {
    text ? call.give_text(*text) : call.give_null();
}

void left_of(const Call& call) {
    call.give_text(left(call.text(0), call.integer(1)));
}
void right_of(const Call& call) {
    call.give_text(right(call.text(0), call.integer(1)));
}
void substring_of(const Call& call) {
    call.give_text(substring(call.text(0), call.integer(1), call.integer(2)));
}
void stuff_into(const Call& call) {
    give_optional(call, stuff(call.text(0), call.integer(1), call.integer(2), call.text(3)));
}
void len(const Call& call) {
    call.give(length_of(call.text(0)));
}
void ltrim(const Call& call) {
    call.give_text(without_leading_blanks(call.text(0)));
}
void rtrim(const Call& call) {
    call.give_text(without_trailing_blanks(call.text(0)));
}
void trim(const Call& call) {
    call.give_text(without_leading_blanks(without_trailing_blanks(call.text(0))));
}
void upper(const Call& call) {
    call.give_text(upper_case(call.text(0)));
}
void lower(const Call& call) {
    call.give_text(lower_case(call.text(0)));
}
void reverse(const Call& call) {
    call.give_text(reversed(call.text(0)));
}
void replicated(const Call& call) {
    give_optional(call, replicate(call.text(0), call.integer(1)));
}
void space(const Call& call) {
    give_optional(call, replicate(" ", call.integer(0)));
}
void quoted(const Call& call) {
    if (call.is_null(0)) return call.give_null();
    give_optional(call, quotename(call.text(0), call.is_null(1) ? "[" : call.text(1)));
}

std::int64_t bytes_of_decimal(int precision) {
    return precision <= 9 ? 5 : precision <= 19 ? 9 : precision <= 28 ? 13 : 17;
}

// Bytes the server would keep the value in.
void datalength(const Call& call) {
    const tsql::Type type = call.type(1);
    switch (type.kind) {
    case TypeKind::NChar:
    case TypeKind::NVarChar:
        return call.give(2 * static_cast<std::int64_t>(room_of(call.text(0), type)));
    case TypeKind::Char:
    case TypeKind::VarChar:
        return call.give(static_cast<std::int64_t>(room_of(call.text(0), type)));
    case TypeKind::Bit:
    case TypeKind::TinyInt: return call.give(1);
    case TypeKind::SmallInt: return call.give(2);
    case TypeKind::Date: return call.give(3);
    case TypeKind::Int:
    case TypeKind::SmallMoney:
    case TypeKind::SmallDateTime:
    case TypeKind::Real: return call.give(4);
    case TypeKind::Decimal: return call.give(bytes_of_decimal(type.precision));
    case TypeKind::UniqueIdentifier: return call.give(16);
    case TypeKind::Binary:
    case TypeKind::VarBinary: return call.give(sqlite3_value_bytes(call.raw(0)));
    default: return call.give(8);
    }
}

// Right-aligned digits; stars when the whole part does not fit.
void str(const Call& call) {
    const std::int64_t length = std::clamp<std::int64_t>(call.integer(1), 0, 8000);
    auto decimals = static_cast<int>(std::clamp<std::int64_t>(call.integer(2), 0, 16));
    std::array<char, 400> digits;
    std::string text;
    for (;; --decimals) {
        const int size =
            std::snprintf(digits.data(), digits.size(), "%.*f", decimals, call.real(0));
        text.assign(digits.data(), static_cast<std::size_t>(size));
        if (decimals == 0 || static_cast<std::int64_t>(text.size()) <= length) break;
    }
    const auto room = static_cast<std::size_t>(length);
    if (text.size() > room) return call.give_text(std::string(room, '*'));
    call.give_text(std::string(room - text.size(), ' ') + text);
}

void give_character(const Call& call, std::int64_t code, std::int64_t most) {
    if (code < 0 || code > most) return call.give_null();
    std::string text;
    append_character(static_cast<char32_t>(code), text);
    call.give_text(text);
}

void char_of(const Call& call) {
    give_character(call, call.integer(0), 255);
}
void nchar_of(const Call& call) {
    give_character(call, call.integer(0), 0x10FFFF);
}

void unicode(const Call& call) {
    const std::string_view text = call.text(0);
    std::size_t place = 0;
    if (text.empty()) return call.give_null();
    call.give(static_cast<std::int64_t>(next_character(text, place)));
}

void format(const Call& call) {
    const tsql::Type type = call.type(1);
    give_optional(call, format_value(call.stored(0, type), type, call.text(2)));
}

constexpr FunctionEntry entries[] = {
    {"zf_left", 2, Nature::pure, left_of},
    {"zf_right", 2, Nature::pure, right_of},
    {"zf_substring", 3, Nature::pure, substring_of},
    {"zf_stuff", 4, Nature::pure, stuff_into},
    {"zf_len", 1, Nature::pure, len},
    {"zf_datalength", 2, Nature::pure, datalength},
    {"zf_ltrim", 1, Nature::pure, ltrim},
    {"zf_rtrim", 1, Nature::pure, rtrim},
    {"zf_trim", 1, Nature::pure, trim},
    {"zf_upper", 1, Nature::pure, upper},
    {"zf_lower", 1, Nature::pure, lower},
    {"zf_reverse", 1, Nature::pure, reverse},
    {"zf_replicate", 2, Nature::pure, replicated},
    {"zf_space", 1, Nature::pure, space},
    {"zf_quotename", 2, Nature::pure_with_null, quoted},
    {"zf_str", 3, Nature::pure, str},
    {"zf_char", 1, Nature::pure, char_of},
    {"zf_nchar", 1, Nature::pure, nchar_of},
    {"zf_ascii", 1, Nature::pure, unicode},
    {"zf_unicode", 1, Nature::pure, unicode},
    {"zf_format", 3, Nature::pure, format},
};

} // namespace

std::span<const FunctionEntry> text_functions() {
    return entries;
}

} // namespace engines
