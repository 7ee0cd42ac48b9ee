// How the forms that audit or copy the books reach them: on a connection of their own.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "automation/check/check.h"

namespace app {

// Opens a connection of its own, so that an audit never stands in the way of a form's work.
using OpenForAudit = std::function<std::unique_ptr<engines::Session>()>;

// Set by whoever opened the books; one a process. Without it there is nothing to audit.
OpenForAudit& open_for_audit();

// Throws Refusal.
std::unique_ptr<engines::Session> open_books_again();

struct BooksAudit {
    automation::Audit audit;
    std::string seal; // of the operation log; "" while it is empty
};

// Audits the open books and tells how far it has come through the user interface; nullopt when the
// person stopped it. Throws Refusal, engines::Failure.
std::optional<BooksAudit> audit_books_now();

struct LogAudit {
    std::vector<std::string> findings;
    std::string seal;
};

// The same for the operation log alone.
std::optional<LogAudit> check_log_now();

} // namespace app
