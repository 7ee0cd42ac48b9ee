// Amounts in capital numerals, as the total of a voucher is written.
#include "module/vouchers/capital_numerals.h"

namespace module {
namespace {

const char* const digits[] = {"零", "壹", "贰", "叁", "肆", "伍", "陆", "柒", "捌", "玖"};

// The yuan part without its unit. A run of zeros inside is read as one 零, at the end of a group of
// four not at all; a group of zeros loses its unit, except that 亿 counts for what stands above it.
std::string whole_yuan(std::int64_t yuan) {
    static const char* const places[] = {"", "拾", "佰", "仟"};
    static const char* const groups[] = {"", "万", "亿", "万"};
    const std::string text = std::to_string(yuan);
    const int count = static_cast<int>(text.size());
    std::string words;
    bool zero_pending = false;
    bool group_written = false;
    for (int i = 0; i < count; ++i) {
        const int place = count - 1 - i;
        const int digit = text[i] - '0';
        if (digit == 0) {
            zero_pending = true;
        } else {
            if (zero_pending && !words.empty()) words += "零";
            words += std::string(digits[digit]) + places[place % 4];
            zero_pending = false;
            group_written = true;
        }
        if (place % 4 == 0) {
            if (group_written || (place == 8 && !words.empty())) words += groups[place / 4];
            group_written = false;
        }
    }
    return words;
}

std::string jiao_and_fen(int jiao, int fen, bool after_yuan) {
    if (jiao == 0 && fen == 0) return "整";
    if (jiao == 0) return std::string(after_yuan ? "零" : "") + digits[fen] + "分";
    const std::string text = std::string(digits[jiao]) + "角";
    return fen == 0 ? text + "整" : text + digits[fen] + "分";
}

} // namespace

std::string capital_numerals(Amount amount) {
    const std::int64_t units = amount.rounded(2).units();
    if (units == 0) return "零元整";
    const std::int64_t cents = (units < 0 ? -units : units) / (Amount::scale / 100);
    const std::int64_t yuan = cents / 100;
    const int rest = static_cast<int>(cents % 100);
    return std::string(units < 0 ? "负" : "") + (yuan ? whole_yuan(yuan) + "元" : "") +
           jiao_and_fen(rest / 10, rest % 10, yuan != 0);
}

} // namespace module
