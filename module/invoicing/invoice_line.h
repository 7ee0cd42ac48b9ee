// The arithmetic of one line of a sales document.
#pragma once

#include <string>

#include "host/values/amount.h"
#include "module/host_names.h"

namespace module {

// Decimals that a display format such as "0.00" shows: its length less 2.
int decimals_of(const std::string& format);

// A quantity in larger units and what is left: 26 bottles at 12 a box are 2 boxes and 2 bottles.
struct Packed {
    Amount pieces; // whole larger units
    Amount rest;
};
Packed packed(Amount quantity, Amount conversion); // a conversion of 0 counts as 1
Amount unpacked(const Packed& quantity, Amount conversion);

// Quantity times price, rounded to `decimals` half away from zero.
Amount line_amount(Amount quantity, Amount price, int decimals);
// The price that makes `amount` of the quantity; nothing costs nothing where there is no quantity.
Amount line_price(Amount amount, Amount quantity, int decimals);

} // namespace module
