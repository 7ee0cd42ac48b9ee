// Reads decimal numbers from text digit by digit.
#include "engines/sqlite/numbers/decimal.h"
#include "engines/sqlite/text/blanks.h"

namespace engines {
namespace {

// Collects digits; rounds half away from zero at the first decimal that does not fit.
class DigitCollector {
public:
    explicit DigitCollector(int scale) : scale_(scale) {}

    void digit(int value, bool after_point) {
        if (after_point && decimals_ == scale_) {
            if (!rounded_) round_up_ = value >= 5;
            rounded_ = true;
            return;
        }
        push(value);
        if (after_point) ++decimals_;
    }

    ParsedDecimal finish(bool negative) {
        for (; decimals_ < scale_; ++decimals_) push(0);
        if (round_up_ && ++value_ == limit_) overflow_ = true;
        return {negative ? -value_ : value_, overflow_};
    }

private:
    void push(int digit) {
        if (overflow_ || value_ > (limit_ - 1 - digit) / 10)
            overflow_ = true;
        else
            value_ = value_ * 10 + digit;
    }

    const Int128 limit_ = power_of_ten(38);
    const int scale_;
    Int128 value_ = 0;
    int decimals_ = 0;
    bool rounded_ = false;
    bool round_up_ = false;
    bool overflow_ = false;
};

} // namespace

std::optional<ParsedDecimal> parse_decimal(std::string_view text, int scale) {
    text = without_blanks(text);
    bool negative = false;
    if (text.starts_with('-') || text.starts_with('+')) {
        negative = text.front() == '-';
        text = without_blanks(text.substr(1));
    }
    DigitCollector digits(scale);
    bool after_point = false;
    bool any = false;
    for (const char character : text) {
        if (character == '.' && !after_point) {
            after_point = true;
        } else if (character >= '0' && character <= '9') {
            digits.digit(character - '0', after_point);
            any = true;
        } else {
            return std::nullopt;
        }
    }
    if (!any) return std::nullopt;
    return digits.finish(negative);
}

} // namespace engines
