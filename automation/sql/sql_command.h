// `zhangfang sql`: T-SQL batches from a stream, their results to another.
#pragma once

#include <istream>
#include <ostream>

#include "engines/session.h"

namespace automation {

// Batches separated by lines GO; prints a table for each result set and the number of rows written.
// Errors go to `errors` with number, line and column; the batches after it still run.
// Answers whether every batch succeeded.
bool run_sql(engines::Session& session, std::istream& in, std::ostream& out, std::ostream& errors);

// One JSON object a line: {"id": any, "sql": "batch"}, answered by
// {"id", "columns", "rows", "sets", "affected", "error"} on one line, in order.
// A line that is no such object is answered with an "error" of number 0. Answers true.
bool run_sql_json_lines(engines::Session& session, std::istream& in, std::ostream& out);

} // namespace automation
