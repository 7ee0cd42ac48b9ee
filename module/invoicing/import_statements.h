// Receipts for the sales documents that one dispatch note carried.
#pragma once

#include <string>

#include "host/values/amount.h"
#include "module/host_names.h"

namespace module {

// The note's documents, each customer's followed by a row of his own with the total (INX 1).
std::string select_dispatched(const std::string& note);

struct ImportedReceipt {
    std::string number, customer, account, date, slip, user;
    Amount total;
};

std::string insert_imported_head(const ImportedReceipt& receipt);
// Writes off one document in full.
std::string insert_imported_line(const std::string& number, const std::string& document,
                                 const std::string& customer, Amount total);

} // namespace module
