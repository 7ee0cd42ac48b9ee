// Where the operation log ends, and a mark of it that can be kept outside the books.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "engines/session.h"

namespace automation {

// The one row of SYS_LOG_HEAD.
struct LogHead {
    bool kept = false; // the books know heads and texts of logs: they are not of an earlier program
    bool found = false;
    std::int64_t last = 0;       // number of the last row
    std::string hash;            // of the last row
    std::int64_t first_text = 1; // the first row whose text is kept
};

// Throws engines::Failure.
LogHead read_log_head(engines::Session& session);

// Whoever may write the file can also make the whole log anew, chain and head included. A seal
// noted down elsewhere shows that: the row of its number must still have its hash.
//
// Example: "1234-0123456789abcdef", the number of the last row and the beginning of its hash; ""
// for a log without rows. Throws engines::Failure.
std::string log_seal(engines::Session& session);

// What is wrong with the log by a seal taken earlier: "" when it still holds what was sealed.
// nullopt when the text is no seal. Throws engines::Failure.
std::optional<std::string> broken_seal(engines::Session& session, std::string_view seal);

} // namespace automation
