// Hangs the operation log on a session.
#include "app/data/direct_changes.h"

#include <pwd.h>
#include <unistd.h>

#include "app/data/log_entry.h"

namespace app {

void log_direct_changes(engines::Session& session, const host::Clock& clock,
                        const std::string& user) {
    if (!keeps_log(session)) return;
    session.set_recorder([&session, &clock, user](std::string_view batches) {
        const engines::Outcome logged =
            append_log_row(session, clock.now(), user, {"sql", "", "Sql"}, batches);
        if (!logged.ok()) throw engines::Failure(*logged.error);
    });
}

std::string system_user() {
    const passwd* entry = getpwuid(geteuid());
    return "(" + (entry == nullptr ? std::to_string(geteuid()) : std::string(entry->pw_name)) + ")";
}

} // namespace app
