// The measured pieces of work; each returns its rows of the table.
#pragma once

#include <vector>

#include "bench/books.h"
#include "bench/ratio.h"

namespace bench {

std::vector<Row> posting(const BigBooks& books);
std::vector<Row> saving(const BigBooks& books);
std::vector<Row> trial_balance(const BigBooks& books);
std::vector<Row> detailed_ledger(const BigBooks& books);
std::vector<Row> voucher_list(const BigBooks& books);
std::vector<Row> general_ledger(const BigBooks& books);
std::vector<Row> statement(const BigBooks& books);
std::vector<Row> compilation(const BigBooks& books);
std::vector<Row> loading(const BigBooks& books);
std::vector<Row> demonstration(const BigBooks& books);
std::vector<Row> printing(const BigBooks& books); // needs the desktop

} // namespace bench
