// Where a password comes from: the environment, or a question at the terminal.
#pragma once

#include <optional>
#include <string>

namespace app {

// The variable ZHANGFANG_PASSWORD, also when it is set to nothing; else what is typed at the
// terminal without being shown; nullopt where there is no terminal. Never an argument: arguments
// are seen by everyone on the machine.
std::optional<std::string> given_password(const std::string& question);

// The same for a password that is being set: typed twice at the terminal until both agree.
std::optional<std::string> new_password(const std::string& question);

} // namespace app
