// Writes cells as plain text without locale and without rounding.
#include "engines/value_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

#include "engines/calendar.h"

namespace engines {
namespace {

void append_padded(std::int64_t number, int width, std::string& out) {
    std::array<char, 24> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
    for (auto digits = end - buffer.data(); digits < width; ++digits) out += '0';
    out.append(buffer.data(), end);
}

void append_day(std::int64_t days, std::string& out) {
    const CalendarDay day = calendar_day(days);
    append_padded(day.year, 4, out);
    out += '-';
    append_padded(day.month, 2, out);
    out += '-';
    append_padded(day.day, 2, out);
}

void append_clock(std::int64_t seconds, std::string& out) {
    append_padded(seconds / 3600, 2, out);
    out += ':';
    append_padded(seconds / 60 % 60, 2, out);
    out += ':';
    append_padded(seconds % 60, 2, out);
}

void append_datetime(std::int64_t ticks, bool with_milliseconds, std::string& out) {
    const std::int64_t days = day_of_ticks(ticks);
    const std::int64_t rest = ticks - days * ticks_per_day;
    append_day(days, out);
    out += ' ';
    append_clock(rest / 300, out);
    if (!with_milliseconds) return;
    out += '.';
    // A tick is 3.33 ms and shown as 0, 3 or 7.
    append_padded((rest % 300 * 10 + 1) / 3, 3, out);
}

void append_real(double number, std::string& out) {
    if (!std::isfinite(number)) {
        out += std::isnan(number) ? "nan" : number < 0 ? "-inf" : "inf";
        return;
    }
    // The shortest digits that read back as the same number, in the usual notation between
    // 0.0001 and 1e16 and with an exponent outside of it.
    std::array<char, 32> buffer;
    const double size = std::fabs(number);
    const bool plain = size == 0 || (size >= 1e-4 && size < 1e16);
    const auto format = plain ? std::chars_format::fixed : std::chars_format::scientific;
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, format).ptr;
    const std::string_view digits(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    out += digits;
    if (plain && digits.find('.') == std::string_view::npos) out += ".0";
}

void append_binary(std::string_view bytes, std::string& out) {
    static constexpr char digits[] = "0123456789ABCDEF";
    out += "0x";
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        out += digits[code >> 4];
        out += digits[code & 15];
    }
}

} // namespace

void append_decimal(Int128 unscaled, int scale, std::string& out) {
    std::array<char, 48> buffer;
    char* const end = buffer.data() + buffer.size();
    char* place = end;
    const bool negative = unscaled < 0;
    __extension__ typedef unsigned __int128 Magnitude;
    Magnitude rest = negative ? -static_cast<Magnitude>(unscaled) : Magnitude(unscaled);
    int digits = 0;
    while (rest != 0 || digits <= scale) {
        if (digits == scale && scale > 0) *--place = '.';
        *--place = static_cast<char>('0' + static_cast<int>(rest % 10));
        rest /= 10;
        ++digits;
    }
    if (negative) *--place = '-';
    out.append(place, end);
}

void append_text(const Value& value, std::string& out) {
    switch (value.kind()) {
    case ValueKind::null: return;
    case ValueKind::bit:
    case ValueKind::integer: append_padded(value.as_integer(), 0, out); return;
    case ValueKind::decimal: append_decimal(value.unscaled(), value.scale(), out); return;
    case ValueKind::real: append_real(value.as_real(), out); return;
    case ValueKind::datetime: append_datetime(value.as_integer(), true, out); return;
    case ValueKind::smalldatetime: append_datetime(value.as_integer(), false, out); return;
    case ValueKind::date: append_day(value.as_integer(), out); return;
    case ValueKind::time: append_clock(value.as_integer() / 10000000, out); return;
    case ValueKind::text:
    case ValueKind::guid: out += value.as_text(); return;
    case ValueKind::binary: append_binary(value.as_text(), out); return;
    }
}

std::string text_of(const Value& value) {
    std::string text;
    append_text(value, text);
    return text;
}

} // namespace engines
