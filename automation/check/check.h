// Audits a set of books.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "engines/session.h"

namespace automation {

// One thing that is not as it must be.
struct Finding {
    std::string check; // which check found it, in words: "凭证借贷不平"
    std::string text;  // the record and the figures: "2024-03记005: 借方 100.00 贷方 99.99"
};

struct Audit {
    std::vector<Finding> findings; // empty when the books are sound
    std::vector<Finding> hints;    // unusual, but as it may be: numbers left out, a period reopened
};

// How far the audit has come: what is looked at, and checks done and in all. False stops it.
using AuditProgress = std::function<bool(const std::string& check, std::int64_t done,
                                         std::int64_t all)>;

// Runs every check on the state of one instant; nullopt when it was stopped. A check that cannot
// run is a finding itself. Only reads; other users may go on working.
std::optional<Audit> audit_books(engines::Session& session, const AuditProgress& progress = {});

// The same for the operation log alone.
std::optional<Audit> audit_log(engines::Session& session, const AuditProgress& progress = {});

// The findings alone.
std::vector<Finding> check_books(engines::Session& session);

} // namespace automation
