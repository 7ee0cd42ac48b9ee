// Who works with the books: name and password.
#pragma once

#include <functional>
#include <string>

namespace desktop {

// Asks until `try_login` answers "" (true) or the person gives up (false).
bool log_in(const std::string& company, const std::string& last_user,
            const std::function<std::string(const std::string& user,
                                            const std::string& password)>& try_login);

} // namespace desktop
