// Books with a few documents of trade, every figure derived by hand in trade_fixture.cpp.
#pragma once

#include "tests/books/ledger_fixture.h"

namespace tests {

class Trade : public Ledger {
protected:
    // Customers K1 and K2 (who has nothing), supplier G1, accounts '1' and '2', and the documents.
    Trade();
    void run(const std::string& batch) { data_->execute(batch, {"631", "", "Edit"}); }
    // All rows, cells joined by " ", rows by "\n"; NULL shows as "-".
    std::string rows(const std::string& statement);
    // "SUMMONEY YSMONEY" of a document.
    std::string settled(const std::string& table, const std::string& document);
};

} // namespace tests
