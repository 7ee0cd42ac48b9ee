// The door to the database. The host hands texts through; the program puts an engine behind it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "host/values/value.h"

namespace host {

struct ColumnDescription {
    std::string name;
    FieldType type = FieldType::Text;
    int size = 0;     // characters of a text column, 0 unknown
    int decimals = 2; // of an Amount column
};

// Receives a result row by row. `text` of a cell is only valid during the call.
struct CellView {
    bool null = true;
    // Integer; Boolean 0/1; Amount in ten-thousandths; DateTime in ms since 1970-01-01.
    std::int64_t integer = 0;
    std::string_view text; // Text; an Amount in full where it is finer than ten-thousandths
};
class RowReceiver {
public:
    virtual ~RowReceiver() = default;
    virtual void columns(const std::vector<ColumnDescription>& columns) = 0;
    virtual void row(const std::vector<CellView>& cells) = 0;
};

// Who did what, for the operation log.
struct LogEntry {
    std::string function;  // "661"
    std::string key;       // "2024-03记005"
    std::string operation; // "Add"
};

// A look at the books inside the transaction of a batch, before its first statement: why the batch
// must not run any more, "" when it may. Nobody else writes between this look and the batch, so
// what it saw still holds. May query, not execute.
using WhyNot = std::function<std::string()>;

class DataPort {
public:
    virtual ~DataPort() = default;
    // Runs a batch that reads and hands the first result set to `receiver`. Throws DataError, also
    // for a batch that would change something, of which nothing is then done.
    virtual void query(std::string_view sql, RowReceiver& receiver) = 0;
    // Runs a batch in one transaction, all of it or nothing, and writes its row of the operation
    // log in the same transaction. Returns when it is durable. Throws DataError, also with the
    // reason that `why_not` gives; nothing was written then.
    virtual void execute(std::string_view batch, const LogEntry& entry,
                         const WhyNot& why_not = {}) = 0;
    // What is queried between the two is what an act of a person is decided on: execute() within
    // them writes nothing and throws DataError when somebody else has changed any of it since.
    // They nest, and the inner act stands alone. See held_readings.h.
    virtual void hold_readings() {}
    virtual void release_readings() {}
};

} // namespace host
