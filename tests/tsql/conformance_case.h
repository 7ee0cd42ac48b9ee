// A case of T-SQL conformance and what a session answers to it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "engines/session.h"

namespace tests {

using Cell = std::optional<std::string>;
using Row = std::vector<Cell>;

struct ResultSet {
    std::vector<std::string> columns; // upper case
    std::vector<Row> rows;
};

struct ConformanceCase {
    std::string id;
    std::string note;
    std::vector<std::string> setup;
    std::string sql;
    std::string check; // empty: the sets are those of sql
    int error = 0;
    bool ordered = false;
    bool all_sets = false; // every set of the batch counts, not only the first
    std::vector<ResultSet> expected;
};

// All cases below tests/tsql/cases.
const std::vector<ConformanceCase>& conformance_cases();

// Runs the case on the session and says how the answer differs; empty when it does not.
std::string difference_in(const ConformanceCase& one, engines::Session& session);

} // namespace tests
