// A person on books with customers, goods and orders, for sales documents and what they bring in.
#pragma once

#include "tests/forms/ledger_desk.h"

namespace tests {

class InvoicingDesk : public LedgerDesk {
protected:
    InvoicingDesk(); // with the list of receipts open
    void new_invoice();
    // What was sent to be written since the last mark, without the numbers taken.
    std::string batch_sent();
    // "TOLMONEY SUMMONEY YSMONEY" of a sales document.
    std::string settled(const std::string& document);
    std::string shown(const std::string& control); // code and name
};

} // namespace tests
