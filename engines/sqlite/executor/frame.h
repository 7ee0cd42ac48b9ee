// What a running plan works with: its variables, its literals, where it stands.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "engines/sqlite/functions/runtime.h"
#include "tsql/compiler.h"
#include "tsql/plan/plan.h"

namespace engines {

// A cell of a captured row with the type it is read by.
struct TypedValue {
    tsql::Type type;
    OwnedValue value;
};

// One activation of a batch, procedure, function or trigger.
struct Frame {
    std::shared_ptr<const void> owner; // keeps the plan alive
    const tsql::Plan* plan = nullptr;
    const tsql::LiteralValues* literals = nullptr;
    std::vector<OwnedValue> variables;
    tsql::LineColumn base; // where the plan's text begins in the batch
    std::string routine;   // empty in a batch
    std::string trigger;   // of a trigger its name
    const std::vector<int>* updated_columns = nullptr;
    std::optional<std::int64_t> scope_identity;
    tsql::Type return_type = tsql::Type::integer(); // of a scalar function; a procedure gives int
    OwnedValue return_value;
    std::vector<std::string> temporary_tables;    // made here, go with the frame
    const std::vector<TypedValue>* row = nullptr; // of INSERT … EXEC
    std::int64_t row_mark = 0;
};

// What a step hands on to those around it.
enum class Flow : std::uint8_t { next, leave_loop, next_round, leave_routine, end_batch };

} // namespace engines
