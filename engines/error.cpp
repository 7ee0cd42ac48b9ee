// Sorts error numbers of SQL Server into categories.
#include "engines/error.h"

namespace engines {

ErrorCategory category_of(int number) {
    if (number >= 50000) return ErrorCategory::user;
    switch (number) {
    case 515:
    case 547:
    case 2601:
    case 2627: return ErrorCategory::constraint;
    case 241:
    case 242:
    case 244:
    case 245:
    case 248:
    case 295:
    case 296:
    case 517:
    case 529:
    case 2628:
    case 8114:
    case 8152:
    case 8169:
    case 8170:
    case 9436:
    case 235:
    case 293: return ErrorCategory::conversion;
    case 220:
    case 232:
    case 512:
    case 3623:
    case 8115:
    case 8134: return ErrorCategory::arithmetic;
    case 628:
    case 3609:
    case 3902:
    case 3903:
    case 3930:
    case 6401: return ErrorCategory::transaction;
    case 1205:
    case 1222: return ErrorCategory::busy;
    case 3906: return ErrorCategory::read_only;
    case 1101:
    case 1105: return ErrorCategory::disk_full;
    case 823: return ErrorCategory::io;
    case 824: return ErrorCategory::damaged;
    default: return ErrorCategory::syntax;
    }
}

std::string_view name_of(ErrorCategory category) {
    switch (category) {
    case ErrorCategory::syntax: return "syntax";
    case ErrorCategory::constraint: return "constraint";
    case ErrorCategory::conversion: return "conversion";
    case ErrorCategory::arithmetic: return "arithmetic";
    case ErrorCategory::user: return "user";
    case ErrorCategory::transaction: return "transaction";
    case ErrorCategory::busy: return "busy";
    case ErrorCategory::interrupted: return "interrupted";
    case ErrorCategory::read_only: return "read-only";
    case ErrorCategory::disk_full: return "disk full";
    case ErrorCategory::damaged: return "damaged";
    case ErrorCategory::foreign_file: return "foreign file";
    case ErrorCategory::newer_file: return "newer file";
    case ErrorCategory::access: return "access";
    case ErrorCategory::io: return "input or output";
    case ErrorCategory::internal: return "internal";
    }
    return "internal";
}

} // namespace engines
