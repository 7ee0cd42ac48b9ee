// What a batch delivers: its result sets, counts, messages and errors, in the order they arise.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engines/error.h"
#include "engines/value.h"

namespace engines {

// One column of a result set. kind is the type of its values; each value is of it or null.
struct Column {
    std::string name; // as the statement names it, "" when it has no name
    ValueKind kind = ValueKind::text;
    int precision = 0; // of decimal
    int scale = 0;     // of decimal
    int length = 0;    // of text and binary: declared length, 0 unknown, -1 max
    bool nullable = true;
};

// Takes what a batch delivers. Views handed over are valid during the call only.
//
// Example: rows of the first set into a vector
//   struct Names : ResultReceiver {
//       std::vector<std::string> all;
//       bool row(std::span<const Value> cells) override {
//           all.emplace_back(cells[0].as_text());
//           return true;
//       }
//   };
class ResultReceiver {
public:
    virtual ~ResultReceiver() = default;
    // A result set begins; its rows follow until end_set or the next begin_set.
    virtual void begin_set(std::span<const Column>) {}
    // One row. false: the rest of this set is not wanted; the batch itself goes on.
    virtual bool row(std::span<const Value>) { return true; }
    virtual void end_set() {}
    // Rows written by one INSERT, UPDATE or DELETE of the batch (triggers do not count).
    virtual void affected(std::int64_t) {}
    // PRINT, and RAISERROR of severity up to 10.
    virtual void message(std::string_view) {}
    // Each error that is not caught by TRY, the first one included.
    virtual void error(const Error&) {}
};

// How a batch ended. error is the first one raised; statements after it may still have run.
struct Outcome {
    std::optional<Error> error;
    std::int64_t affected = 0; // rows written by all statements of the batch
    bool ok() const { return !error; }
};

} // namespace engines
