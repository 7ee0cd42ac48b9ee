// The statements of one voucher: how it is read, written and copied to a template.
#pragma once

#include <string>
#include <vector>

#include "host/values/date.h"
#include "module/host_names.h"
#include "module/vouchers/voucher_line.h"

namespace module {

// Heads with the maker's name; a condition follows.
extern const char* const voucher_heads;
// Lines of one voucher; "%s" stands for the quoted key.
extern const char* const voucher_lines;

std::string select_voucher_head(const std::string& key);
std::string select_voucher_lines(const std::string& key);

// A voucher's head as it is stored. `number` stays as typed; only the key pads it.
struct VoucherHead {
    std::string key;
    std::string period;
    std::string word;
    std::string number;
    std::string attachments; // number of source documents
    std::string date;
    std::string maker; // key of the user
};

std::string delete_voucher(const std::string& key);
std::string insert_voucher_head(const VoucherHead& head);
// The booked lines, numbered from 0 in their order.
std::string insert_voucher_lines(const std::string& key, const std::vector<VoucherLine>& lines);

} // namespace module
