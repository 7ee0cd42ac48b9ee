// What the person who logged in may do.
#pragma once

#include <set>
#include <string>
#include <utility>

#include "app/login/login.h"
#include "host/ports/host.h"

namespace app {

// Read once at the login: a change of roles counts from the next login on. An administrator may
// everything; everybody else what one of his roles has a row for.
class Rights {
public:
    // Throws Refusal where the books have no role tables yet, for anyone but an administrator.
    static Rights of(engines::Session& session, const User& user);
    bool allow(const host::Right& right) const;

private:
    bool all_ = false;
    std::set<std::pair<std::string, std::string>> granted_; // function, action
};

} // namespace app
