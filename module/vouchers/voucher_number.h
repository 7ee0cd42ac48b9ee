// Numbers and keys of vouchers: counted from 1 within a period and a word.
#pragma once

#include <cstdint>
#include <string>

#include "module/host_names.h"

namespace module {

// The current period of the books, "2024-03"; "" when they were not set up.
std::string read_current_period(const std::string& function);

// One above the highest number of the period and word, so a deleted number is not given again
// while a higher one stands; 1 for the first voucher.
std::int64_t next_voucher_number(const std::string& function, const std::string& period,
                                 const std::string& word);

// Period, word and number padded to three digits: "2024-03记005".
std::string voucher_key(const std::string& period, const std::string& word,
                        const std::string& number);

// Is the key in use by another voucher? `own_key` is the key of the voucher being changed, "" for
// a new one; it may keep its number.
bool voucher_key_taken(const std::string& function, const std::string& key,
                       const std::string& own_key);

} // namespace module
