// Writes a set of books as a plain-text journal that ledger and hledger read.
#pragma once

#include <string>

#include "bench/hand/connection.h"

namespace bench::peers {

// The openings as one transaction on the day before the first voucher, then every voucher in the
// order of its date, word and number. Debits are positive. An account's name is its code with the
// codes above it: 7000:700001:70000102. Amounts are exact decimals.
//
//     2011-01-05 记012
//         7000:700002  1234.50
//         7001:700105  -1234.50
void write_journal(const hand::Connection& books, const std::string& file);

// The name of an account in the journal.
std::string journal_account(const hand::Connection& books, const std::string& code);

} // namespace bench::peers
