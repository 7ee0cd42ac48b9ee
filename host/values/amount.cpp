// Exact amounts: checked arithmetic, rounding half away from zero, reading and writing.
#include "host/values/amount.h"

#include <array>
#include <limits>
#include <stdexcept>

namespace host {

namespace {

__extension__ typedef __int128 Wide;

constexpr std::array<std::int64_t, 5> power_of_ten = {1, 10, 100, 1'000, 10'000};

[[noreturn]] void too_large() { throw std::overflow_error("金额超出可以记录的范围"); }

std::int64_t narrow(Wide value) {
    if (value > std::numeric_limits<std::int64_t>::max() ||
        value < std::numeric_limits<std::int64_t>::min())
        too_large();
    return static_cast<std::int64_t>(value);
}

// Quotient rounded half away from zero.
Wide divide(Wide numerator, Wide denominator) {
    if (denominator < 0) {
        numerator = -numerator;
        denominator = -denominator;
    }
    const Wide half = denominator / 2;
    return numerator >= 0 ? (numerator + half) / denominator
                          : -((half - numerator) / denominator);
}

bool is_blank(char c) { return c == ' ' || c == '\t'; }

std::string_view without_blanks(std::string_view text) {
    while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
    while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
    return text;
}

} // namespace

Amount Amount::from_cents(std::int64_t cents) { return Amount(narrow(Wide(cents) * 100)); }

Amount Amount::from_whole(std::int64_t yuan) { return Amount(narrow(Wide(yuan) * scale)); }

std::optional<Amount> Amount::parse(std::string_view text) {
    text = without_blanks(text);
    bool negative = false;
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        negative = text.front() == '-';
        text.remove_prefix(1);
    }
    Wide units = 0;
    int decimals = -1; // -1 before the point
    bool digits = false, round_up = false;
    for (const char c : text) {
        if (c == '.' && decimals < 0) {
            decimals = 0;
        } else if (c == ',' && decimals < 0 && digits) {
            continue;
        } else if (c >= '0' && c <= '9') {
            digits = true;
            if (decimals == 4) round_up = c >= '5';
            if (decimals >= 4) {
                decimals = 5;
                continue;
            }
            units = units * 10 + (c - '0');
            if (units > Wide(std::numeric_limits<std::int64_t>::max())) return std::nullopt;
            if (decimals >= 0) ++decimals;
        } else {
            return std::nullopt;
        }
    }
    if (!digits) return std::nullopt;
    for (int have = decimals < 0 ? 0 : decimals; have < 4; ++have) units *= 10;
    if (round_up) ++units;
    if (units > Wide(std::numeric_limits<std::int64_t>::max())) return std::nullopt;
    return Amount(static_cast<std::int64_t>(negative ? -units : units));
}

Amount Amount::rounded(int decimals) const {
    if (decimals >= 4) return *this;
    const int dropped = 4 - (decimals < 0 ? 0 : decimals);
    const std::int64_t step = power_of_ten[static_cast<std::size_t>(dropped)];
    return Amount(narrow(divide(units_, step) * step));
}

std::string Amount::to_text(int decimals) const {
    if (decimals < 0) decimals = 0;
    const int kept = decimals > 4 ? 4 : decimals;
    const Wide value = divide(units_, power_of_ten[static_cast<std::size_t>(4 - kept)]);
    const auto magnitude = static_cast<std::uint64_t>(value < 0 ? -value : value);
    std::string digits = std::to_string(magnitude);
    if (digits.size() <= static_cast<std::size_t>(kept))
        digits.insert(0, static_cast<std::size_t>(kept) + 1 - digits.size(), '0');
    if (decimals > 0) digits.insert(digits.size() - static_cast<std::size_t>(kept), ".");
    digits.append(static_cast<std::size_t>(decimals - kept), '0');
    return value < 0 ? "-" + digits : digits;
}

std::string Amount::to_plain_text() const {
    std::string text = to_text(4);
    while (text.back() == '0') text.pop_back();
    if (text.back() == '.') text.pop_back();
    return text;
}

Amount Amount::operator-() const { return Amount(narrow(-Wide(units_))); }

Amount& Amount::operator+=(Amount other) {
    units_ = narrow(Wide(units_) + other.units_);
    return *this;
}

Amount& Amount::operator-=(Amount other) {
    units_ = narrow(Wide(units_) - other.units_);
    return *this;
}

Amount Amount::times(std::int64_t numerator, std::int64_t denominator, int decimals) const {
    if (denominator == 0) too_large();
    const int kept = decimals < 0 ? 0 : decimals > 4 ? 4 : decimals;
    const Wide step = power_of_ten[static_cast<std::size_t>(4 - kept)];
    // Rounded once, at the decimals asked for.
    return Amount(narrow(divide(Wide(units_) * numerator, Wide(denominator) * step) * step));
}

} // namespace host
