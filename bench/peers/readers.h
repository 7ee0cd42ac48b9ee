// One question to books, put to three programs, and their answers in one form.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "bench/books.h"

namespace bench::peers {

// Closing balance of each account that takes entries and has one, on the debit side, in cents.
using Balances = std::map<std::string, std::int64_t>;
// Amounts of an account's lines of one month in order, debits positive, in cents.
using Register = std::vector<std::int64_t>;

// How a program is asked, and how its answer is read.
struct Reader {
    std::string name;
    std::vector<std::string> trial_balance, account_register; // commands
    std::string trial_balance_input, register_input;          // standard input
    Balances (*balances)(const std::string& output);
    Register (*lines)(const std::string& output);
};

// The program itself (an executable at `program`), reading books whose last period is posted.
Reader ours(const std::string& program, const BigBooks& books);
// Programs that read the journal; `account` as the journal names it.
Reader ledger(const std::string& journal, const BigBooks& books, const std::string& account);
Reader hledger(const std::string& journal, const BigBooks& books, const std::string& account);

} // namespace bench::peers
