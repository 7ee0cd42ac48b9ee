// The lookup hint of a code field, and what it offers while a code is typed.
#pragma once

#include <string>

namespace host {

class TClientDataSet;
class TLinkEdit;
struct Suggestion;

// Opens a picker over code and name of the rows of `table` that `condition` lets through; `caption`
// names the window and the name's column. `rows` receives what is offered. The code chosen goes
// into the edit, its name beside it; left without a choice the edit stays as it was.
//
//     CommonHint(KM_ID, rows, "d6801", "km_id", "科目编号", "km_name", "科目", "(km_id>'3141')");
void CommonHint(TLinkEdit& edit, TClientDataSet& rows, const std::string& table,
                const std::string& code, const std::string& code_title, const std::string& name,
                const std::string& caption, const std::string& condition);

// Type-ahead: what is typed into the edit is looked for among the rows of `query`, whose columns
// are code, full name and, where there is a third, pinyin initials (else they are made of the
// name). Codes that begin with the text come first; a blank text offers nothing. Any text may stand
// in the edit: a row comes in only when it is chosen. The rows are read when a text is begun, so
// that a window that stays open knows the codes opened meanwhile; nothing is read before.
//
//     OfferCodes(KM1, "SELECT KM_ID,KM_NAME2,PYM FROM V6801 ORDER BY KM_ID");
void OfferCodes(TLinkEdit& edit, const std::string& query);

// Offers while typing the rows that CommonHint lets pick from.
void OfferHint(TLinkEdit& edit, const std::string& table, const std::string& code,
               const std::string& name, const std::string& condition);

// Takes a row that was offered: its code goes into the edit, its name beside it.
void TakeSuggestion(TLinkEdit& edit, const Suggestion& chosen);

} // namespace host
