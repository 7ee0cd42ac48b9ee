// Who is at work in the books.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "engines/session.h"

namespace app {

struct User {
    std::string id;   // "admin"
    std::string name; // "管理员"
    bool administrator = false;
};

// Asked only for a user that has a password; nullopt means none can be given.
using PasswordSource = std::function<std::optional<std::string>()>;

// Throws Refusal for an unknown or inactive user and for a wrong password; the sentence does not
// tell which of the two it was.
User log_in(engines::Session& session, const std::string& user, const PasswordSource& password);

// The one user who may come in, where nobody else may and he has no password.
std::optional<std::string> only_user(engines::Session& session);

} // namespace app
