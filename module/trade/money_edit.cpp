// The field of an amount in the head of a document.
#include "module/trade/money_edit.h"

#include <algorithm>

namespace module {

// Digits with a sign in front where wanted, and no more decimals than the field has.
bool MoneyEdit::plain(const std::string& text) const {
    const std::size_t first = text.starts_with('-') ? 1 : 0;
    const std::size_t point = std::min(text.find('.'), text.size());
    const auto digits = [&text](std::size_t from, std::size_t to) {
        return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(from),
                           text.begin() + static_cast<std::ptrdiff_t>(to),
                           [](char character) { return character >= '0' && character <= '9'; });
    };
    const bool whole = point > first && digits(first, point) &&
                       (text[first] != '0' || point == first + 1) && point - first <= 12;
    if (point == text.size()) return whole;
    const std::size_t decimals = text.size() - point - 1;
    return whole && digits(point + 1, text.size()) && decimals > 0 &&
           decimals <= static_cast<std::size_t>(Decimals);
}

void MoneyEdit::enter_text(const std::string& text) {
    if (plain(text)) TEdit::enter_text(text);
    else TNumberEdit::enter_text(text);
}

void MoneyEdit::leave() {
    if (!plain(Text)) TNumberEdit::leave();
}

} // namespace module
