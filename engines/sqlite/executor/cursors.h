// Cursors: the rows of a query, taken one at a time.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "engines/sqlite/executor/frame.h"
#include "tsql/catalog/catalog.h"

namespace engines {

// A cursor keeps all its rows from OPEN on, so that writing while reading is safe.
struct Cursor {
    std::shared_ptr<const void> owner; // keeps the query alive
    const tsql::SqlQuery* query = nullptr;
    const tsql::Plan* plan = nullptr; // the one that declared it
    tsql::LiteralValues literals;     // of the text that declared it
    bool open = false;
    std::vector<std::vector<TypedValue>> rows;
    std::int64_t place = -1; // row last fetched; -1 before the first
};

using Cursors = std::map<std::string, Cursor, tsql::NameLess>;

} // namespace engines
