// One movement of money between two of the company's own accounts, and its statements.
#pragma once

#include <string>

#include "module/host_names.h"

namespace module {

// A row of D653 as a person enters it. The amount is sent as it was typed: "1000", "12.30".
struct BankTransfer {
    std::string number, date;      // "648240305001", "2024-03-05"
    std::string paying, receiving; // codes of money accounts
    std::string amount, summary;
    std::string staff, department;
    std::string operator_id; // who wrote it last
};

// All of them with the names of their codes; ends in a blank, a condition follows.
std::string select_transfers();
std::string select_transfer(const std::string& number);

std::string insert_transfer(const BankTransfer& transfer);
// Whatever number stands in `transfer`, the document keeps the one it has.
std::string update_transfer(const BankTransfer& transfer, const std::string& number);

} // namespace module
