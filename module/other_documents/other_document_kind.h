// In what other receipts and other payments differ: tables, captions, messages.
#pragma once

#include "module/trade/document_number.h"
#include "module/trade/trade_code.h"

namespace module {

// A document of either kind is settled at once in a money account (C 0), or stays open against a
// party until a receipt or payment writes it off (C 1).
struct OtherDocumentKind {
    NumberSeries numbers;
    const char* caption;      // of the entry form
    const char* list_caption; // of the list
    const char* settled;      // C 0
    const char* open;         // C 1
    const char* heads;        // table of the heads
    const char* lines;        // of the lines
    const TradeCode& party;
    const char* party_caption;
    const char* account_caption;
    const char* party_account;  // what account '0', the receivable or payable itself, is called
    const char* category_title; // of the lines' category
    int category_class;         // SZLB_CLASS of the categories offered
    const char* party_missing;  // an open document has a party
    const char* nobody_named;   // every document names somebody
    const char* open_hint;      // what becomes of an open document
    const char* write_offs;     // counts the write-off lines that name a document, "%S" its key
    const char* written_off_by; // why a document that has some is not deleted
};

extern const OtherDocumentKind other_receipts, other_payments;

} // namespace module
