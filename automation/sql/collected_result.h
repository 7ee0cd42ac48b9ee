// Everything one batch delivered, kept as plain text.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "engines/session.h"

namespace automation {

// A cell as text in the form of engines/value_text.h; null is nullopt.
using TextCell = std::optional<std::string>;
using TextRow = std::vector<TextCell>;

struct ResultSet {
    std::vector<std::string> columns;
    std::vector<TextRow> rows;
};

struct CollectedResult {
    std::vector<ResultSet> sets;
    std::vector<std::string> messages; // PRINT
    engines::Outcome outcome;
};

// Runs a batch as it stands on the session's connection; an error is in `outcome`.
CollectedResult collect(engines::Session& session, std::string_view batch);

// The rows of the first result set. Throws engines::Failure when the batch failed.
//
// Example: rows_of(session, "SELECT PARAM FROM D6600 WHERE ID=2")[0][0]
std::vector<TextRow> rows_of(engines::Session& session, std::string_view batch);

} // namespace automation
