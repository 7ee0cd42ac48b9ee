// What other receipts and payments ask of the books, and what they write into them.
#pragma once

#include <string>

#include "host/values/amount.h"
#include "module/other_documents/other_document_kind.h"

namespace module {

struct OtherDocumentHead {
    std::string number;
    bool open = false; // C 1
    std::string party, staff, department;
    std::string account; // as it stands in the form
    std::string date, summary, user;
    std::string total; // as the lines' sum is shown
};

struct OtherDocumentLine {
    std::string category;
    Amount amount;
    std::string note;
};

// ---- reading

std::string select_heads(const OtherDocumentKind& kind); // a condition may follow
std::string select_head(const OtherDocumentKind& kind, const std::string& number);
std::string select_lines(const OtherDocumentKind& kind); // "%s" stands for the quoted number
std::string select_lines(const OtherDocumentKind& kind, const std::string& number);
// A line of nothing for every category that the kind may use.
std::string select_blank_lines(const OtherDocumentKind& kind);
// Code, name and pinyin of these categories.
std::string select_categories(const OtherDocumentKind& kind);

// ---- writing

// A settled document is born with its whole total settled; an open one lies on account '0',
// whatever account the form shows.
std::string insert_head(const OtherDocumentKind& kind, const OtherDocumentHead& head);
// The account is written as it stands: an open document was opened with '0' and keeps it.
std::string update_head(const OtherDocumentKind& kind, const OtherDocumentHead& head);
std::string recompute_open_amount(const OtherDocumentKind& kind, const std::string& number);
std::string delete_lines(const OtherDocumentKind& kind, const std::string& number);
std::string insert_line(const OtherDocumentKind& kind, const std::string& number,
                        const OtherDocumentLine& line);

} // namespace module
