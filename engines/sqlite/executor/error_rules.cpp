// The server's classes of errors.
#include "engines/sqlite/executor/error_rules.h"

namespace engines {

bool ends_batch(const Error& error) {
    switch (error.category) {
    case ErrorCategory::conversion: return error.number != 8152;
    case ErrorCategory::constraint:
    case ErrorCategory::arithmetic: return false;
    case ErrorCategory::user: return true;
    case ErrorCategory::transaction: return error.number == 3609 || error.number == 3930;
    case ErrorCategory::syntax: break;
    default: return true;
    }
    // Calls that do not fit the routine end only the call.
    switch (error.number) {
    case 201:
    case 217:
    case 2812:
    case 8144:
    case 8145:
    case 8146:
    case 8162:
    case 512:
    case 517:
    case 535:
    case 536:
    case 537:
    case 544:
    case 545:
    case 213:
    case 281:
    case 289:
    case 506:
    case 1031:
    case 2714:
    case 3701:
    case 16915:
    case 16916:
    case 16917: return false;
    default: return true;
    }
}

void set_place(Error& error, const tsql::LineColumn& base, const tsql::LineColumn& at) {
    if (error.line != 0) return;
    error.line = base.line + at.line - 1;
    error.column = at.line == 1 ? base.column + at.column - 1 : at.column;
}

bool can_be_caught(const Error& error) {
    switch (error.category) {
    case ErrorCategory::interrupted:
    case ErrorCategory::disk_full:
    case ErrorCategory::damaged:
    case ErrorCategory::io: return false;
    default: return true;
    }
}

} // namespace engines
