// A person on books with parties, staff, accounts and categories, for other receipts and payments.
#pragma once

#include "tests/forms/ledger_desk.h"

namespace tests {

class OtherDocumentDesk : public LedgerDesk {
protected:
    OtherDocumentDesk();
    // Opens the list and a new document.
    void new_document(int code);
    // What was sent to be written since the last mark, and the mark set anew.
    std::string batch_sent();
    // "NOID C TOLMONEY SUMMONEY YSMONEY JY_ID" of every document, a line each.
    std::string documents(const std::string& table);
};

} // namespace tests
