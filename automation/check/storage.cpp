// The storage itself: pages, indexes, declared rules.
#include "automation/check/findings.h"

namespace automation {

void check_storage(engines::Session& session, Findings& findings) {
    for (std::string& text : session.check_integrity()) findings.add(std::move(text));
}

} // namespace automation
