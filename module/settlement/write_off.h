// One item written off by a receipt or payment: its sign, and the sum over all of them.
#pragma once

#include <string>
#include <vector>

#include "host/values/amount.h"
#include "module/host_names.h"

namespace module {

// Kinds of items that are no documents of sale or purchase; the column C of a line.
inline constexpr int other_item = 5;
inline constexpr int return_item = 6;

// A row of the open items as the user left it.
struct WriteOff {
    std::string number;   // of the document; "" for an income category
    int kind = 0;         // 0 document, 2 opening, 5 other, 6 return
    Amount total;         // of the document, negative for a return
    Amount share;         // written off here
    std::string category; // income category of an over-receipt; "" for an open item
};

// What is owed is written off by an amount above 0, what was returned by one below.
bool sign_fits(const WriteOff& line);

inline constexpr const char* sign_refusal =
    "应收款为正数,本次收款请填正数,应收款为负数,本次应收款请填负数,请更正!";

// The line whose amount has the wrong sign; -1 when there is none.
int first_wrong_sign(const std::vector<WriteOff>& lines);
Amount sum_of_shares(const std::vector<WriteOff>& lines);

// The over-receipt of a receipt after one more category. It is kept as the ten-thousandth part of
// the sum of the categories, each step rounded to four decimals: 200.00 makes 0.02. The money
// itself stands in the lines of the categories.
Amount over_receipt_with(Amount so_far, Amount category);

} // namespace module
