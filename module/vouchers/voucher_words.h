// The voucher words of the books: one word for all vouchers, or words by kind of business.
#pragma once

#include <string>
#include <vector>

#include "module/host_names.h"

namespace module {

// Scheme "1": 记 alone and fixed. "2": 收 付 转. "3": 现收 现付 银收 银付 转. Books that say
// nothing use 记.
struct VoucherWords {
    std::vector<std::string> words;
    bool fixed = false; // the word cannot be chosen
    bool by_kind = false;
};

VoucherWords voucher_words_of(const std::string& scheme);

// Reads the scheme of the books; `query` answers it as PARAM.
VoucherWords read_voucher_words(const std::string& function,
                                const std::string& query = "SELECT PARAM FROM D6600 WHERE ID=3");

} // namespace module
