// Reading and writing the books: every form sends its statements through these operations.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/ports/data_port.h"

namespace host {

class TClientDataSet;

// Fills `dataset` with the rows of a SELECT. `function` is the calling form's code. The other
// arguments are always the ones shown. Throws DataError; the dataset then keeps what it had.
void opensql(TClientDataSet& dataset, const std::string& function, const std::string& select,
             int = 0, int = 0, const std::string& = "", const std::string& = "", bool = false,
             const std::string& = "1");

// Runs a batch of statements joined by ";" in one transaction, all of it or nothing, and writes one
// row of the operation log with it. Answers "Y"; otherwise what went wrong was shown to the
// person and the answer is something else. Never throws for an error of the database.
std::string ExecSql(const std::string& function, const std::string& key,
                    const std::string& operation, const std::string& batch, std::uint16_t = 0,
                    bool = false, bool = true, bool = false, bool = true);

// The same where the batch rests on what was read before this act began: a document opened to be
// changed, balances that a dialog showed. `why_not` looks at it again inside the transaction, and
// its reason is shown instead of running the batch. What the act itself read is held anyway
// (host/ports/held_readings.h) and asks for no second look.
std::string ExecSqlUnless(const WhyNot& why_not, const std::string& function,
                          const std::string& key, const std::string& operation,
                          const std::string& batch);

// The next number of a kind of document: code + YYMMDD + a running number of three digits, four
// past 999. Unique under concurrent users.
std::string GetNOID(const std::string& code, const std::string& table, int = 0);

// Saves the cached changes of a dataset into `table` by `key`: true when done.
bool ApplyUpdate(const std::string& function, const std::string& table, const std::string& key,
                 TClientDataSet& dataset, bool = true);

// Row checks of the trade documents: does any row of the dataset repeat the text of `field`
// (checkDatamore), is any blank (checkCoSeng)? A message naming `title` is shown when so.
bool checkDatamore(TClientDataSet& dataset, const std::string& field, const std::string& title);
bool checkCoSeng(TClientDataSet& dataset, const std::string& field, const std::string& title);

} // namespace host
