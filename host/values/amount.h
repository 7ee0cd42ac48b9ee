// An amount of money, exact: a whole number of ten-thousandths.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace host {

// Sums, differences and comparisons are exact; a result outside ±922 337 203 685 477.5807 throws
// std::overflow_error instead of bending. Rounding, wherever a text or a display asks for fewer
// decimals, is half away from zero, as a bookkeeper rounds: 0.125 → 0.13, -0.125 → -0.13.
//
//     Amount total = *Amount::parse("1234.50") + Amount::from_cents(50);   // 1235.00
class Amount {
public:
    static constexpr std::int64_t scale = 10'000;

    constexpr Amount() = default;
    static constexpr Amount from_units(std::int64_t units) { return Amount(units); }
    static Amount from_cents(std::int64_t cents);
    static Amount from_whole(std::int64_t yuan);

    // The amount a person typed or a statement returned: blanks around, a sign and thousands
    // separators are taken; more than four decimals are rounded. Anything else is nullopt.
    static std::optional<Amount> parse(std::string_view text);

    constexpr std::int64_t units() const { return units_; }
    constexpr bool is_zero() const { return units_ == 0; }
    constexpr bool is_negative() const { return units_ < 0; }

    Amount rounded(int decimals) const;          // 0 to 4 decimals
    std::string to_text(int decimals = 2) const; // "1234.50", "-0.07"
    std::string to_plain_text() const;           // shortest exact form: "1234.5", "0"

    Amount operator-() const;
    Amount& operator+=(Amount other);
    Amount& operator-=(Amount other);
    friend Amount operator+(Amount a, Amount b) { return a += b; }
    friend Amount operator-(Amount a, Amount b) { return a -= b; }
    // Product and quotient by a ratio of whole numbers, rounded to `decimals` half away from zero.
    Amount times(std::int64_t numerator, std::int64_t denominator, int decimals = 2) const;
    friend constexpr auto operator<=>(Amount, Amount) = default;

private:
    explicit constexpr Amount(std::int64_t units) : units_(units) {}
    std::int64_t units_ = 0;
};

} // namespace host
