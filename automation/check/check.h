// Audits a set of books.
#pragma once

#include <string>
#include <vector>

#include "engines/session.h"

namespace automation {

// One thing that is not as it must be.
struct Finding {
    std::string check; // which check found it, in words: "凭证借贷不平"
    std::string text;  // the record and the figures: "2024-03记005: 借方 100.00,贷方 99.99"
};

// Runs every check; empty when the books are sound. A check that cannot run is a finding itself.
// Reads only, in one pass a check; other users may go on working.
std::vector<Finding> check_books(engines::Session& session);

} // namespace automation
