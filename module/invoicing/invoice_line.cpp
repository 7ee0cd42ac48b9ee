// The arithmetic of one line of a sales document.
#include "module/invoicing/invoice_line.h"

#include <algorithm>

#include "host/values/text.h"

namespace module {

namespace {

Amount divisor(Amount conversion) {
    return conversion.is_zero() ? Amount::from_whole(1) : conversion;
}

} // namespace

int decimals_of(const std::string& format) {
    return std::clamp(static_cast<int>(character_count(format)) - 2, 0, 4);
}

Packed packed(Amount quantity, Amount conversion) {
    const Amount unit = divisor(conversion);
    const Amount pieces = Amount::from_whole(quantity.units() / unit.units());
    return {pieces, quantity - pieces.times(unit.units(), Amount::scale, 4)};
}

Amount unpacked(const Packed& quantity, Amount conversion) {
    return quantity.pieces.times(divisor(conversion).units(), Amount::scale, 4) + quantity.rest;
}

Amount line_amount(Amount quantity, Amount price, int decimals) {
    return quantity.times(price.units(), Amount::scale, decimals);
}

Amount line_price(Amount amount, Amount quantity, int decimals) {
    return quantity.is_zero() ? Amount() : amount.times(Amount::scale, quantity.units(), decimals);
}

} // namespace module
