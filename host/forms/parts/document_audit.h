// Auditing the selected documents of a list, and taking it back.
#pragma once

#include <string>
#include <vector>

namespace host {

struct EntryHeadSettings;
class TClientDataSet;

// The documents of `rows` (positions in `list`) that the audit changes, and the batch that does it.
struct AuditPlan {
    std::vector<int> rows;
    std::string keys;    // for the operation log
    std::string batch;   // one UPDATE a document; empty when there is nothing to do
    std::string refusal; // why nothing may be done; empty when all may go on
};

struct AuditRequest {
    bool audit = true;        // false takes the audit back
    bool two_persons = false; // the maker may not audit his own document
    bool strict = false;      // what is posted is corrected in red only
    std::string user_id, user_name;
    std::string day; // "2024-03-05"
};

// Documents that are in the wanted state already are passed over. One refused document refuses all:
// a person then sees at once what was not done.
AuditPlan plan_audit(const TClientDataSet& list, const std::vector<int>& rows,
                     const EntryHeadSettings& settings, const AuditRequest& request);

} // namespace host
